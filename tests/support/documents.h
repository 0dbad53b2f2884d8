#pragma once

#include "toolkit/report/document.h"

#include <gtest/gtest.h>

#include <QString>

namespace kaldo::test {

/// Compares a laid-out document with a committed file under tests/. A difference prints the dump
/// whole, between two lines of dashes: once it has been looked at and found right, that is what the
/// file should hold. No test writes such a file.
::testing::AssertionResult matchesFile(const report::Document &document, const QString &path);

/// No line of text stands on another or outside of the paper's margins. `width` narrows the
/// allowed strip from the left margin on, in millimetres; 0 is the page's own width.
::testing::AssertionResult readsCleanly(const report::Document &document, double width = 0);

/// Saves a picture of every page under $KALDO_PICTURES, where that is set.
void pagePictures(const report::Document &document, const QString &name);

}  // namespace kaldo::test
