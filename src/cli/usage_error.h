#pragma once

#include <stdexcept>

namespace orbelle::cli {

// Wrong usage; what() says what is wrong.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace orbelle::cli
