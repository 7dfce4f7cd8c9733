// SPDX-License-Identifier: MIT
#include "host/Command.h"

#include "host/Arguments.h"
#include "host/BusProbe.h"
#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/Localization.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

/// Output for programs is the same in every language.
bool isForPeople(int argc, char** argv) {
    return std::none_of(argv + 1, argv + argc, [](std::string_view word) {
        return word == "--json" || word == "completion";
    });
}

} // namespace

int runCommand(int argc, char** argv) {
    using Run = int (*)(int count, const char* const* arguments);
    leaveOutHangingBus();
    QCoreApplication application(argc, argv);
    if (isForPeople(argc, argv))
        loadOwnLocalizations();
    const auto url = CFURLCreateFromFileSystemRepresentation(findOwnBundle().c_str(), true);
    const auto bundle = url ? CFBundleCreate(url.get()) : nullptr;
    std::string error = localized("Host", "Korvex.prefPane: not found beside this program");
    if (!bundle || !CFBundleLoadExecutable(bundle.get(), &error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    const auto run = reinterpret_cast<Run>(
        CFBundleGetFunctionPointerForName(bundle.get(), CFSTR("korvexRunCommand")));
    return run ? run(argc - 1, argv + 1) : 1;
}
