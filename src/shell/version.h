#pragma once

namespace kaldo {

/// The version that the splash shows and the ini file keeps.
inline constexpr char kVersion[] = "1.0.0.0";

}  // namespace kaldo
