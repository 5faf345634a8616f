#include "unit/app/texts/TextsPage.h"

namespace ordalyn::test {

namespace {

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else
            escaped += c;
    }
    return escaped;
}

constexpr const char* kHead =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
    "<title>The texts of Ordalyn</title>\n"
    "<style>body{font-family:sans-serif;margin:2em}td,th{border:1px solid #ccc;padding:.3em .6em;"
    "vertical-align:top;text-align:start}td{white-space:pre-wrap}table{border-collapse:collapse}"
    "</style>\n</head>\n<body>\n<h1>The texts of Ordalyn, as they are shown</h1>\n";

}  // namespace

std::string TextsPage(const std::vector<TextsSection>& sections, const std::string& rightToLeft) {
    std::string page = kHead;
    for (const TextsSection& section : sections) {
        page += "<h2>" + Escaped(section.name) + "</h2>\n<table>\n";
        for (const auto& [language, text] : section.texts)
            page += "<tr><th>" + Escaped(language) + "</th><td" +
                    (language == rightToLeft ? " dir=\"rtl\">" : ">") + Escaped(text) +
                    "</td></tr>\n";
        page += "</table>\n";
    }
    return page + "</body>\n</html>\n";
}

}  // namespace ordalyn::test
