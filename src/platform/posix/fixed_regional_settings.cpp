#include "platform/posix/fixed_regional_settings.h"

namespace platform {

base::RegionalSettings GermanSettings() {
    return {.decimal = ",", .thousands = ".", .systemParse = nullptr};
}

base::RegionalSettings EnglishSettings() {
    return {.decimal = ".", .thousands = ",", .systemParse = nullptr};
}

} // namespace platform
