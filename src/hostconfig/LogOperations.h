// LogOperations: what reads the operations of a log, with the words of the language that the file
// manager uses. The words are looked up when they are first needed, so that a start does not wait
// for them.
#pragma once

#include <optional>

#include "hostconfig/OperationWords.h"
#include "log/Operation.h"

namespace ordalyn {

class LogOperations {
  public:
    explicit LogOperations(const OperationWords::Surroundings& around) : words_(around) {}

    // The same object until Forget. Not before the file manager's settings have been looked for.
    const OperationReader& Reader();
    // The file manager's settings are other ones, or are only known now.
    void Forget() { reader_.reset(); }

  private:
    OperationWords words_;
    std::optional<OperationReader> reader_;
};

}  // namespace ordalyn
