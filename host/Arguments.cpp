// SPDX-License-Identifier: MIT
#include "host/Arguments.h"

#include "platform/CoreFoundation/Localization.h"

#include <filesystem>
#include <getopt.h>

const char* const kUsage = LOCALIZABLE(
    "Host", "Usage: korvex-preferences [BUNDLE.prefPane]\n"
            "       korvex-preferences COMMAND OPERANDS\n"
            "       korvex-preferences --section NAME\n"
            "       korvex-preferences --service\n"
            "       korvex-preferences --check BUNDLE.prefPane\n"
            "\n"
            "Shows the settings pane of the bundle, of Korvex's own without one.\n"
            "\n"
            "  COMMAND         change or read settings without a window; see the command \"help\"\n"
            "  --section NAME  show that section of the pane, for example \"palette\"\n"
            "  --service       wait until the session bus asks for the window\n"
            "  --check BUNDLE  load the bundle, check its interface files, show nothing\n"
            "  --help          print this text\n"
            "  --version       print the version\n");

namespace {

/// A bundle is named by its path or its ending. Any other word is a command.
bool isCommand(const std::string& operand) {
    return operand.find('/') == std::string::npos && !operand.ends_with(".prefPane");
}

} // namespace

Arguments parseArguments(int argc, char** argv) {
    using Task = Arguments::Task;
    static constexpr ::option kOptions[] = {
        {"check", required_argument, nullptr, 'c'},   {"help", no_argument, nullptr, 'h'},
        {"section", required_argument, nullptr, 's'}, {"service", no_argument, nullptr, 'b'},
        {"version", no_argument, nullptr, 'v'},       {},
    };
    // Options end at the first operand. No option goes with another.
    const int option = getopt_long(argc, argv, "+", kOptions, nullptr);
    const int operands = argc - optind;
    if (option == -1 && operands >= 1 && isCommand(argv[optind]))
        return {Task::Command, {}, {}};
    if (option == -1 && operands <= 1)
        return {Task::Show, operands == 1 ? argv[optind] : "", {}};
    if (operands == 0) {
        switch (option) {
        case 'c':
            return {Task::Check, optarg, {}};
        case 'h':
            return {Task::Help, {}, {}};
        case 's':
            return {Task::Show, {}, optarg};
        case 'b':
            return {Task::Serve, {}, {}};
        case 'v':
            return {Task::Version, {}, {}};
        }
    }
    return {Task::Misuse, {}, {}};
}

void loadOwnLocalizations() {
    loadLocalizations(findOwnBundle() + "/Contents/Resources");
}

std::string findOwnBundle() {
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    for (const char* place : {"..", KORVEX_DIR_FROM_PROGRAM}) {
        const auto bundle = (folder / place / "Korvex.prefPane").lexically_normal();
        if (std::filesystem::is_directory(bundle, error))
            return bundle;
    }
    return {};
}
