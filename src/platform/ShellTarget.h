// What the shell can be asked to open or to show. It would start whatever it is given: so it takes
// no text, only one of these, and there is no other way to make one.
#pragma once

#include <string>
#include <string_view>

namespace ordalyn::platform {

class ShellTarget {
  public:
    // An address that stands in the program: no text that comes from outside can become one.
    class Address {
      public:
        consteval Address(std::string_view text) : text_(text) {
            if (!text.starts_with("https://"))
                throw "only pages that nobody can change on their way";
        }
        std::string_view Text() const { return text_; }

      private:
        std::string_view text_;
    };

    static ShellTarget Page(Address address) { return ShellTarget(address.Text()); }
    // A compiled help file, by its full path. Throws InvalidPropertyValue when it is something
    // else.
    static ShellTarget HelpFile(std::string_view path);

    // One page of it, by its name without an ending: lower-case letters.
    static ShellTarget HelpPage(std::string_view path, std::string_view page);

    // The file manager, by the full path of its program, which has one of two names, and told to
    // show a path: that is one argument, whatever it holds. Throws InvalidPropertyValue for another
    // program, and for a path that no argument can hold (see HasForeignSign) or that does not say
    // all of its way.
    static ShellTarget FileManager(std::string_view program, std::string_view path);
    // A file or folder that is to be selected in the shell's window of the folder that it lies in.
    // It is not opened. Throws InvalidPropertyValue for what is neither on a drive nor in a
    // network.
    static ShellTarget Selected(std::string_view path);

    // ShowPage: Text is a help file, Arguments the page in it.
    enum class Deed { Open, ShowPage, Select };
    Deed What() const { return deed_; }
    const std::string& Text() const { return text_; }
    const std::string& Arguments() const { return arguments_; }

  private:
    explicit ShellTarget(std::string_view text) : text_(text) {}
    Deed deed_ = Deed::Open;
    std::string text_;
    std::string arguments_;
};

}  // namespace ordalyn::platform
