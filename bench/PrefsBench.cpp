// SPDX-License-Identifier: MIT
// Loading and storing the settings. Floor: the bare work on a file of the same bytes.

#include "bench/Figures.h"
#include "src/store/prefs.h"

#include <QXmlStreamReader>

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string domainFile() {
    return std::string(std::getenv("XDG_CONFIG_HOME")) + "/Preferences/" + kAgentBundleIDText +
           ".plist";
}

std::string readWhole(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The result of `measure` in a new process.
template <class Function>
double inChild(Function&& measure) {
    int ends[2];
    if (pipe(ends) != 0)
        return -1;
    const pid_t child = fork();
    if (child == 0) {
        const double result = measure();
        _exit(write(ends[1], &result, sizeof result) == sizeof result ? 0 : 1);
    }
    close(ends[1]);
    double result = -1;
    if (read(ends[0], &result, sizeof result) != sizeof result)
        result = -1;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return result;
}

// A process reads a domain once, so each load needs a new process. This one must not have used the
// domain before.
void storeDomain() {
    static const double stored = inChild([] { return savePrefs() ? 0.0 : -1.0; });
    (void)stored;
}

double loadDomain() {
    storeDomain();
    return inChild([] { return secondsOf(prefsSetup); });
}

double parseFile() {
    storeDomain();
    return inChild([] {
        return secondsOf([] {
            QXmlStreamReader reader(QByteArray::fromStdString(readWhole(domainFile())));
            while (!reader.atEnd())
                reader.readNext();
        });
    });
}

/// In use, saves are far apart: one when the pane is put away. So the disk must have finished with
/// the one before. A busy disk of a virtual machine answers with the kernel's clock, every 4 ms: a
/// save begins anywhere between two of its ticks.
void waitForDisk() {
    usleep(3000); // the save's own work in the background
    static const std::string folder = domainFile().substr(0, domainFile().rfind('/'));
    const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    fsync(file);
    close(file);
    usleep(static_cast<useconds_t>(std::rand() % 4000));
}

double saveOneChange() {
    waitForDisk();
    prefs.lineScanTime = prefs.lineScanTime == 10.0 ? 10.5 : 10.0;
    bool saved = false;
    const double seconds = secondsOf([&] { saved = savePrefs(); });
    return saved ? seconds : -1;
}

double replaceFile() {
    static const std::string bytes = readWhole(domainFile());
    static const std::string target = domainFile() + ".floor", fresh = target + ".new";
    waitForDisk();
    bool written = false;
    const double seconds = secondsOf([&] {
        const int file = open(fresh.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
        written = write(file, bytes.data(), bytes.size()) == std::ssize(bytes) &&
                  fsync(file) == 0 && close(file) == 0 &&
                  rename(fresh.c_str(), target.c_str()) == 0;
    });
    return written ? seconds : -1;
}

} // namespace

void addPrefsFigures() {
    addFigure("prefsSetup from an existing domain", {Limit::Times, 2}, loadDomain, parseFile);
    addFigure("savePrefs with one changed field", {Limit::Times, 1.5}, saveOneChange, replaceFile);
}
