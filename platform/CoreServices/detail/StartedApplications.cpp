// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/StartedApplications.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/detail/DetachedProcess.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr std::chrono::seconds kPatience{10};
constexpr int kMostEndings = 2;

constexpr OSType kApplicationType = fourCharCode("APPL");

/// 0 when the bundle has none.
OSType signatureOf(const CFBundle* bundle) {
    const auto* text = dynamicCFCast<CFString>(
        CFBundleGetValueForInfoDictionaryKey(bundle, CFSTR("CFBundleSignature")));
    const std::string code = text ? toUTF8(text) : std::string();
    OSType signature = 0;
    for (const char letter : code)
        signature = signature << 8 | static_cast<UInt8>(letter);
    return code.size() == sizeof signature ? signature : 0;
}

} // namespace

StartedApplications& StartedApplications::shared() {
    static auto& only = *new StartedApplications;
    return only;
}

StartedApplications::StartedApplications()
    : processes_(watchProcesses([this] { noteProcesses(); })) {
    changed_.setSingleShot(true);
}

OSStatus StartedApplications::start(const CFURL* url) {
    const CFRef<CFBundle> bundle = CFBundleCreate(url);
    const CFRef<CFURL> executable = bundle ? CFBundleCopyExecutableURL(bundle.get()) : nullptr;
    Application& application = applications_[bundle ? bundle->path() : url->path()];
    if (!executable) {
        application.couldntStart = true;
        tell();
        return bundle ? kLSNotAnApplicationErr : kLSApplicationNotFoundErr;
    }
    application.executable = executable->path();
    application.signature = signatureOf(bundle.get());
    return startUnlessRunning(application);
}

OSStatus StartedApplications::startUnlessRunning(Application& application) {
    const bool isAlive = application.process && !application.process->hasEnded();
    // One that isn't up starts or ends: which, the bus may not have told yet.
    application.startsNext = isQuitting(application) || (isAlive && !isUp(application));
    if (application.startsNext && !isAwaited(application))
        await(application);
    if (application.startsNext || isAlive)
        return noErr;
    if (application.process)
        noteEnd(application);
    return launch(application);
}

OSStatus StartedApplications::launch(Application& application) {
    const pid_t pid = startDetached(application.executable);
    application.couldntStart = pid == 0;
    application.isToQuit = false;
    if (pid == 0) {
        tell();
        return kLSUnknownErr;
    }
    application.process =
        std::make_unique<ProcessEnd>(pid, [this, &application] { noteEnd(application); });
    await(application);
    return noErr;
}

void StartedApplications::await(Application& application) {
    application.awaitedSince = Clock::now();
    // A coarse timer may fire early. This one fires only once, so nobody would be told.
    QTimer::singleShot(kPatience, Qt::PreciseTimer, QCoreApplication::instance(),
                       [this] { tell(); });
    tell();
}

void StartedApplications::noteEnd(Application& application) {
    const pid_t ended = application.process->pid();
    application.process.reset();
    if (!application.isToQuit && !isUp(application, ended))
        ++application.endings;
    tell();
    startIfNext(application);
}

void StartedApplications::noteQuitRequest(const ProcessSerialNumber& psn) {
    const ProcessTable* table = ProcessTable::shared();
    const auto* asked = table ? table->find(psn) : nullptr;
    if (!asked)
        return;
    const auto [pid, signature] = std::pair(asked->name.pid, asked->name.signature);
    if (!quitting_.contains(pid))
        quitting_.emplace(pid,
                          Quitting{signature, std::make_unique<ProcessEnd>(
                                                  pid, [this, pid = pid] { noteQuitEnd(pid); })});
    for (auto& [bundle, application] : applications_) {
        if (!isOf(application, pid, signature))
            continue;
        application.isToQuit |= application.process && application.process->pid() == pid;
        application.startsNext = false;
        application.awaitedSince.reset();
    }
}

void StartedApplications::noteQuitEnd(pid_t pid) {
    quitting_.erase(pid);
    for (auto& [bundle, application] : applications_)
        startIfNext(application);
}

void StartedApplications::startIfNext(Application& application) {
    if (application.startsNext && !isQuitting(application))
        startUnlessRunning(application);
}

void StartedApplications::noteProcesses() {
    for (auto& [bundle, application] : applications_)
        if (isUp(application)) {
            application.awaitedSince.reset();
            application.startsNext = false;
        }
    tell();
}

bool StartedApplications::isOf(const Application& application, pid_t pid, OSType signature) const {
    return (application.process && application.process->pid() == pid) ||
           (application.signature != 0 && application.signature == signature);
}

bool StartedApplications::isUp(const Application& application, pid_t ended) const {
    const ProcessTable* table = ProcessTable::shared();
    return table && table->findIf([&](const ProcessTable::Process& process) {
        const auto& [type, signature, pid] = process.name;
        return type == kApplicationType && isOf(application, pid, signature) && pid != ended &&
               !quitting_.contains(pid);
    });
}

bool StartedApplications::isQuitting(const Application& application) const {
    return std::any_of(quitting_.begin(), quitting_.end(), [&](const auto& item) {
        const auto& [pid, quitting] = item;
        return isOf(application, pid, quitting.signature) && !quitting.process->hasEnded();
    });
}

void StartedApplications::forgive(const std::string& bundle) {
    Application& application = applications_[bundle];
    application.endings = 0;
    application.couldntStart = false;
    if (application.awaitedSince)
        await(application);
}

std::optional<TroubledApplication> StartedApplications::findTrouble() const {
    for (const auto& [bundle, application] : applications_) {
        if (isUp(application))
            continue;
        if (application.endings > kMostEndings)
            return TroubledApplication{bundle, LaunchTrouble::KeepsEnding};
        if (application.couldntStart || (application.awaitedSince && !isAwaited(application)))
            return TroubledApplication{bundle, LaunchTrouble::NotUp};
    }
    return std::nullopt;
}

bool StartedApplications::isAwaited(const Application& application) const {
    const auto since = application.awaitedSince;
    return since && Clock::now() - *since < kPatience;
}

bool StartedApplications::isLaunching(const std::string& bundle) const {
    const auto found = applications_.find(bundle);
    if (found == applications_.end())
        return false;
    const Application& application = found->second;
    return isAwaited(application) && (application.startsNext || application.process);
}

void StartedApplications::tell() {
    changed_.start(0);
}
