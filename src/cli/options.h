#pragma once

namespace cli {

enum class Decimal { User, Comma, Point };

/// What all commands understand.
struct Options {
    bool recursive = false;          ///< -r: also the subfolders of folders
    bool overwrite = false;          ///< -f: existing targets are replaced
    bool quiet = false;              ///< -q: failures and asked-for results only
    Decimal decimal = Decimal::User; ///< --decimal: how text files write numbers
};

} // namespace cli
