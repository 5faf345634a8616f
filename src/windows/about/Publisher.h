// Who makes the program, and its version: what the about box, the title and the home page link
// show.
#pragma once

#include <string_view>

namespace ordalyn::publisher {

inline constexpr std::string_view kMaker = "The Ordalyn developers";
inline constexpr std::string_view kMail = "mail@ordalyn.example";
inline constexpr std::string_view kHomePage = "https://www.ordalyn.example/";
inline constexpr int kMajor = 1;
inline constexpr int kMinor = 0;
inline constexpr int kRevision = 0;

}  // namespace ordalyn::publisher
