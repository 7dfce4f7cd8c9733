// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/ProcessName.h"

#include <QRegularExpression>

QString formatProcessName(const ProcessName& process) {
    const auto hex = [](OSType code) {
        return QStringLiteral("%1").arg(code, 8, 16, QLatin1Char('0')).toUpper();
    };
    return QStringLiteral("org.korvex.Process1.t%1.s%2.p%3")
        .arg(hex(process.type), hex(process.signature))
        .arg(process.pid);
}

std::optional<ProcessName> parseProcessName(const QString& busName) {
    static const auto& pattern = *new QRegularExpression(QStringLiteral(
        "\\Aorg\\.korvex\\.Process1\\.t([0-9A-Fa-f]{8})\\.s([0-9A-Fa-f]{8})\\.p([1-9][0-9]*)\\z"));
    const QRegularExpressionMatch match = pattern.match(busName);
    bool fits = false;
    const int pid = match.captured(3).toInt(&fits);
    if (!match.hasMatch() || !fits)
        return std::nullopt;
    return ProcessName{match.captured(1).toUInt(nullptr, 16), match.captured(2).toUInt(nullptr, 16),
                       pid};
}

std::optional<ProcessSerialNumber> parseUniqueName(const QString& uniqueName) {
    static const auto& pattern =
        *new QRegularExpression(QStringLiteral("\\A:([0-9]+)\\.([0-9]+)\\z"));
    const QRegularExpressionMatch match = pattern.match(uniqueName);
    bool highFits = false, lowFits = false;
    const ProcessSerialNumber psn{match.captured(1).toUInt(&highFits),
                                  match.captured(2).toUInt(&lowFits)};
    if (!highFits || !lowFits || psn == kNoProcess)
        return std::nullopt;
    return psn;
}

QString formatUniqueName(const ProcessSerialNumber& psn) {
    return QStringLiteral(":%1.%2").arg(psn.highLongOfPSN).arg(psn.lowLongOfPSN);
}
