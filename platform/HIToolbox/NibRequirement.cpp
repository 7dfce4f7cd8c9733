// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/NibRequirement.h"

#include "platform/HIToolbox/detail/FormReader.h"
#include "platform/HIToolbox/detail/NibWindow.h"

#include <algorithm>

namespace {

// Never destroyed: bundles may be loaded at any time.
std::vector<NibRequirement>& requirements() {
    static auto& all = *new std::vector<NibRequirement>;
    return all;
}

std::string codeText(OSType code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>((code >> shift) & 0xFF);
    return text;
}

/// What is missing in the window.
QStringList missingIn(const NibWindow& window, const NibRequirement& requirement) {
    QStringList missing;
    const auto any = [&](auto&& holds) {
        return std::any_of(window.controls().begin(), window.controls().end(), holds);
    };
    for (const ControlID& id : requirement.controls)
        if (!any([&](const auto& control) { return control->id() == id; }))
            missing << QStringLiteral("control '%1' %2")
                           .arg(QString::fromStdString(codeText(id.signature)))
                           .arg(id.id);
    for (const UInt32 command : requirement.commands)
        if (!any([&](const auto& control) { return control->command() == command; }))
            missing
                << QStringLiteral("command '%1'").arg(QString::fromStdString(codeText(command)));
    return missing;
}

/// What is wrong with the file.
QStringList errorsIn(const QString& path, const NibRequirement& requirement) {
    FormReader reader;
    const std::unique_ptr<QWidget> form(reader.loadFile(path));
    QStringList errors = reader.errors();
    if (!form)
        return errors;
    for (const char* name : requirement.windows) {
        const QString windowName = QString::fromLatin1(name);
        auto* widget = form->findChild<QWidget*>(windowName, Qt::FindDirectChildrenOnly);
        if (!widget) {
            errors << QStringLiteral("no window '%1'").arg(windowName);
            continue;
        }
        widget->setParent(nullptr);
        const NibWindow window{std::unique_ptr<QWidget>(widget)};
        for (const QString& what : missingIn(window, requirement))
            errors << QStringLiteral("window '%1' has no %2").arg(windowName, what);
    }
    return errors;
}

} // namespace

NibRequirementRegistration::NibRequirementRegistration(const NibRequirement& requirement) {
    requirements().push_back(requirement);
}

bool checkCarbonNibs(const CFBundle* bundle, std::vector<std::string>& errors) {
    const auto folder = CFBundleCopyResourcesDirectoryURL(bundle);
    const std::size_t before = errors.size();
    for (const NibRequirement& requirement : requirements()) {
        const std::string path = folder->path() + '/' + requirement.nib + ".ui";
        for (const QString& error : errorsIn(QString::fromStdString(path), requirement))
            errors.push_back(path + ": " + error.toStdString());
    }
    return errors.size() == before;
}
