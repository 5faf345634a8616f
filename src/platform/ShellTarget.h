// What the shell can be asked to open. It would start whatever it is given: so it takes no text,
// only one of these, and there is no other way to make one.
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

    const std::string& Text() const { return text_; }

  private:
    explicit ShellTarget(std::string_view text) : text_(text) {}
    std::string text_;
};

}  // namespace ordalyn::platform
