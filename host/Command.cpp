// SPDX-License-Identifier: MIT
#include "host/Command.h"

#include "host/Arguments.h"
#include "platform/CoreFoundation/CFBundle.h"

#include <QCoreApplication>

#include <cstdio>

int runCommand(int argc, char** argv) {
    using Run = int (*)(int count, const char* const* arguments);
    QCoreApplication application(argc, argv);
    const auto url = CFURLCreateFromFileSystemRepresentation(findOwnBundle().c_str(), true);
    const auto bundle = url ? CFBundleCreate(url.get()) : nullptr;
    std::string error = "Korvex.prefPane: not found beside this program";
    if (!bundle || !CFBundleLoadExecutable(bundle.get(), &error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    const auto run = reinterpret_cast<Run>(
        CFBundleGetFunctionPointerForName(bundle.get(), CFSTR("korvexRunCommand")));
    return run ? run(argc - 1, argv + 1) : 1;
}
