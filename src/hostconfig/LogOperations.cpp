#include "hostconfig/LogOperations.h"

namespace ordalyn {

const OperationReader& LogOperations::Reader() {
    if (!reader_)
        reader_.emplace(words_.NamesOfTheLog());
    return *reader_;
}

}  // namespace ordalyn
