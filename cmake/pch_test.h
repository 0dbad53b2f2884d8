#pragma once

#include "pch_core.h"

#include <gtest/gtest.h>
