// SPDX-License-Identifier: MIT
#include "platform/CoreServices/Processes.h"

#include "platform/CoreServices/detail/ProcessTable.h"
#include "platform/CoreServices/detail/SessionBus.h"

namespace {

const ProcessTable::Process* findProcess(const ProcessSerialNumber* psn) {
    const ProcessTable* table = ProcessTable::shared();
    return table && psn ? table->find(*psn) : nullptr;
}

} // namespace

OSErr GetCurrentProcess(ProcessSerialNumber* psn) {
    const auto own = parseUniqueName(sessionBus().baseService());
    if (!psn || !own || !findProcess(&*own))
        return procNotFound;
    *psn = *own;
    return noErr;
}

OSErr GetNextProcess(ProcessSerialNumber* psn) {
    const ProcessTable* table = ProcessTable::shared();
    const auto* next = table && psn ? table->findAfter(*psn) : nullptr;
    if (!next)
        return procNotFound;
    *psn = next->psn;
    return noErr;
}

OSErr GetProcessInformation(const ProcessSerialNumber* psn, ProcessInfoRec* info) {
    if (!info || info->processInfoLength != kProcessInfoRecLength)
        return paramErr;
    const auto* process = findProcess(psn);
    if (!process)
        return procNotFound;
    info->processType = process->name.type;
    info->processSignature = process->name.signature;
    return noErr;
}

OSStatus GetProcessPID(const ProcessSerialNumber* psn, pid_t* pid) {
    const auto* process = findProcess(psn);
    if (!process || !pid)
        return procNotFound;
    *pid = process->name.pid;
    return noErr;
}

ProcessSerialNumber findApplication(OSType signature) {
    ProcessSerialNumber self, psn = kNoProcess;
    const bool isOneOfThem = GetCurrentProcess(&self) == noErr;
    while (GetNextProcess(&psn) == noErr) {
        ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
        if (GetProcessInformation(&psn, &info) == noErr &&
            info.processType == fourCharCode("APPL") && info.processSignature == signature &&
            !(isOneOfThem && psn == self))
            return psn;
    }
    return kNoProcess;
}
