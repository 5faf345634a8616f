// The errors that the program's operations raise. They are thrown where something goes wrong and
// caught where the behaviour says what the user sees; what nobody catches reaches the last handler
// of the Windows side (LastHandler), which notifies the user and keeps the program running.
#pragma once

#include <stdexcept>
#include <string>

namespace ordalyn {

// Base of all errors of this program. what() is a sentence in English for the last handler.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// An index lies outside a list or its storage.
class SubscriptOutOfRange : public Error {
  public:
    SubscriptOutOfRange() : Error("Subscript out of range") {}
};

// A text was to be used as a number or an operation was asked of a value that cannot do it.
class TypeMismatch : public Error {
  public:
    TypeMismatch() : Error("Type mismatch") {}
};

// A result does not fit into its whole-number type.
class Overflow : public Error {
  public:
    Overflow() : Error("Overflow") {}
};

// A property was given a value that it cannot take (a negative size, say).
class InvalidPropertyValue : public Error {
  public:
    explicit InvalidPropertyValue(const std::string& what)
        : Error("Invalid property value: " + what) {}
};

// A text file holds what its reader cannot understand.
class MalformedText : public Error {
  public:
    using Error::Error;
};

// A file could not be opened, read or written. Names the file and the system's error number.
class FileError : public Error {
  public:
    FileError(const std::string& path, unsigned long code)
        : Error("Cannot access file " + path + " (error " + std::to_string(code) + ")"),
          path_(path),
          code_(code) {}
    const std::string& Path() const { return path_; }
    unsigned long Code() const { return code_; }

  private:
    std::string path_;
    unsigned long code_;
};

}  // namespace ordalyn
