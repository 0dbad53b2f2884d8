#pragma once

#include <QString>

namespace kaldo {

/// A text of at most `width` characters; a longer value is cut when it is assigned, never refused.
/// Characters are counted as code points, so that a surrogate pair is never split.
QString cutToWidth(const QString &text, int width);

/// Number of characters (code points) of a text.
int characterCount(const QString &text);

/// The capitals that headings of reports use: the five lower-case accented vowels become plain
/// capitals, then everything is put in upper case. Capital accented vowels stay as they are.
QString Mayusculas(const QString &text);

/// Puts a to z in capitals and leaves every other character alone.
QString asciiUpper(const QString &text);

/// A text whose width is part of its type: the session's fields.
template <int Width>
class FixedText {
public:
    FixedText() = default;
    FixedText(const QString &text) : text_(cutToWidth(text, Width)) {}  // NOLINT: a value
    FixedText &operator=(const QString &text) {
        text_ = cutToWidth(text, Width);
        return *this;
    }
    operator const QString &() const { return text_; }  // NOLINT: reads as the text it is
    const QString &text() const { return text_; }
    static constexpr int width() { return Width; }

private:
    QString text_;
};

}  // namespace kaldo
