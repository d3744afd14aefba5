#include "core/rates/Currencies.hpp"

#include <algorithm>

namespace vantello::Currencies {

bool isOffered(std::string_view code) {
    return std::find(offered.begin(), offered.end(), code) != offered.end();
}

}  // namespace vantello::Currencies
