#include "cli/cli.h"

#include <algorithm>

namespace wayscribe::cli {

const std::string *ParsedArgs::option(const std::string &name) const
{
    for (const auto &[key, value] : options)
        if (key == name)
            return &value;
    return nullptr;
}

bool parseArgs(const Args &args, const std::vector<std::string> &known, ParsedArgs &out, std::ostream &err)
{
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string &a = args[i];
        if (a.size() > 2 && a.compare(0, 2, "--") == 0) {
            if (std::find(known.begin(), known.end(), a) == known.end()) {
                err << "wayscribe-cli: unknown option " << a << '\n';
                return false;
            }
            if (i + 1 >= args.size()) {
                err << "wayscribe-cli: option " << a << " needs a value\n";
                return false;
            }
            out.options.emplace_back(a, args[++i]);
        } else {
            out.positional.push_back(a);
        }
    }
    return true;
}

void writeWithUnixLineEnds(std::ostream &out, const std::string &text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        out << text[i];
    }
}

} // namespace wayscribe::cli
