#include "platform/IniFile.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace ordalyn::platform {

namespace {

// The old end-of-file character counts as a blank, too: files from old disks end in one.
bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '\x1A';
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string UpToNul(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

std::string_view WithoutQuotes(std::string_view text) {
    if (text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
        text.back() == text.front())
        return text.substr(1, text.size() - 2);
    return text;
}

void AppendElement(std::string& list, std::string_view element) {
    list += element;
    list += '\0';
}

}  // namespace

IniFile::IniFile(std::string_view text, SameName sameName)
    : sameName_(std::move(sameName)), unchanged_(text) {
    if (!sameName_)
        sameName_ = [](std::string_view a, std::string_view b) { return EqualsIgnoreCase(a, b); };
    sections_.emplace_back();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        AddLine(Trim(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void IniFile::AddLine(std::string_view text) {
    if (text.empty())
        return;
    const std::size_t close = text.front() == '[' ? text.rfind(']') : std::string_view::npos;
    if (close != std::string_view::npos) {
        sections_.push_back({UpToNul(Trim(text.substr(1, close - 1))), {}});
        return;
    }
    const std::size_t equals = text.find('=');
    Line line{UpToNul(Trim(text.substr(0, equals))), std::nullopt};
    if (equals != std::string_view::npos)
        line.value = UpToNul(Trim(text.substr(equals + 1)));
    sections_.back().lines.push_back(std::move(line));
}

const IniFile::SectionLines* IniFile::FindSection(std::string_view name) const {
    const auto found = std::find_if(sections_.begin(), sections_.end(),
                                    [&](const auto& s) { return sameName_(s.name, name); });
    return found == sections_.end() ? nullptr : &*found;
}

const IniFile::Line* IniFile::FindLine(std::string_view section, std::string_view key) const {
    const SectionLines* home = FindSection(Trim(section));
    if (home == nullptr)
        return nullptr;
    const auto line = std::find_if(home->lines.begin(), home->lines.end(),
                                   [&](const Line& l) { return sameName_(l.name, Trim(key)); });
    return line == home->lines.end() ? nullptr : &*line;
}

std::optional<std::string> IniFile::Entry(std::string_view section, std::string_view key) const {
    const Line* line = FindLine(section, key);
    if (line == nullptr || !line->value)
        return std::nullopt;
    return std::string(WithoutQuotes(*line->value));
}

std::string IniFile::Otherwise(std::string_view text) {
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return std::string(WithoutQuotes(text));
}

std::string IniFile::KeyNames(std::string_view section) const {
    std::string names;
    if (const SectionLines* found = FindSection(section)) {
        for (const Line& line : found->lines)
            if (line.value && !line.IsComment())
                AppendElement(names, line.name);
    }
    return names;
}

std::string IniFile::Section(std::string_view section) const {
    std::string entries;
    if (const SectionLines* found = FindSection(section)) {
        for (const Line& line : found->lines) {
            if (line.IsComment())
                continue;
            AppendElement(entries, line.value ? line.name + "=" + *line.value : line.name);
        }
    }
    return entries;
}

std::string IniFile::SectionNames() const {
    std::string names;
    for (const SectionLines& section : sections_)
        if (!section.name.empty())
            AppendElement(names, section.name);
    return names;
}

bool IniFile::WriteEntry(std::string_view section, std::string_view key, std::string_view value) {
    while (!value.empty() && IsBlank(value.front()))
        value.remove_prefix(1);
    if (auto* line = const_cast<Line*>(FindLine(section, key))) {
        if (line->value == value)
            return false;
        line->value = std::string(value);
        return changed_ = true;
    }
    auto* home = const_cast<SectionLines*>(FindSection(Trim(section)));
    if (home == nullptr)
        home = &sections_.emplace_back(SectionLines{std::string(Trim(section)), {}});
    home->lines.push_back({std::string(Trim(key)), std::string(value)});
    return changed_ = true;
}

bool IniFile::DeleteEntry(std::string_view section, std::string_view key) {
    for (SectionLines& candidate : sections_) {
        if (!sameName_(candidate.name, section))
            continue;
        const auto line = std::find_if(candidate.lines.begin(), candidate.lines.end(),
                                       [&](const Line& l) { return sameName_(l.name, key); });
        if (line == candidate.lines.end())
            continue;
        candidate.lines.erase(line);
        return changed_ = true;
    }
    return false;
}

bool IniFile::DeleteSection(std::string_view section) {
    const auto found = std::find_if(sections_.begin(), sections_.end(),
                                    [&](const auto& s) { return sameName_(s.name, section); });
    if (found == sections_.end())
        return false;
    if (found != sections_.begin()) {
        sections_.erase(found);
        return changed_ = true;
    }
    // What stands before the first header stays a section, if an empty one: it has to come first.
    if (found->lines.empty())
        return false;
    found->lines.clear();
    return changed_ = true;
}

std::string IniFile::Text() const {
    if (!changed_)
        return unchanged_;
    std::string text;
    for (const SectionLines& section : sections_) {
        // A header without a name is one, too: without it its lines would join the section before.
        if (&section != &sections_.front())
            text += "[" + section.name + "]\r\n";
        for (const Line& line : section.lines) {
            text += line.name;
            if (line.value)
                text += "=" + *line.value;
            text += "\r\n";
        }
    }
    return text;
}

}  // namespace ordalyn::platform
