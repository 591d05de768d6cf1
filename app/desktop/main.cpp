// kestrav, the program with a window.
#include "app/desktop/start/ProgramOptions.h"
#include "app/desktop/start/Startup.h"

#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int kUsage = 2;

} // namespace

int main(int count, char** words)
{
    const auto options =
        kestrav::desktop::parseOptions({words + (count > 0 ? 1 : 0), words + count});
    if (!options) {
        std::fprintf(stderr, "kestrav: %s\n", options.error().text().c_str());
        return kUsage;
    }
    // What needs no window is done without one.
    if (options.value().help) {
        std::fputs(kestrav::desktop::helpText().c_str(), stdout);
        return 0;
    }
    if (options.value().version) {
        std::puts("kestrav " KESTRAV_VERSION);
        return 0;
    }
    if (options.value().completion) {
        const std::string script = kestrav::desktop::completionScript(*options.value().completion);
        std::fputs(script.c_str(), stdout);
        return script.empty() ? kUsage : 0;
    }
    // The toolkit looks at the words too; it gets none of ours.
    int one = count > 0 ? 1 : 0;
    return kestrav::desktop::runWindow(one, words, options.value());
}
