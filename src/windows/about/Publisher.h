// Who makes the program: what the about box and its link show.
#pragma once

#include <string_view>

namespace ordalyn::publisher {

inline constexpr std::string_view kMaker = "The Ordalyn developers";
inline constexpr std::string_view kMail = "mail@ordalyn.example";
inline constexpr std::string_view kHomePage = "https://www.ordalyn.example/";

}  // namespace ordalyn::publisher
