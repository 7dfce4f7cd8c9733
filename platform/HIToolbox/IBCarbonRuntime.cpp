// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/IBCarbonRuntime.h"

#include "platform/HIToolbox/detail/FormReader.h"
#include "platform/HIToolbox/detail/NibWindow.h"

class CarbonNib {
public:
    explicit CarbonNib(QWidget* form) : form_(form) {}

    /// Takes the window with that name out of the form. Null when there is none.
    std::unique_ptr<QWidget> takeWindow(const QString& name) {
        auto* window = form_->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
        if (window)
            window->setParent(nullptr, Qt::Dialog);
        return std::unique_ptr<QWidget>(window);
    }

private:
    std::unique_ptr<QWidget> form_;
};

OSStatus CreateNibReferenceWithCFBundle(const CFBundle* bundle, const CFString* name,
                                        IBNibRef* nib) {
    const auto url = CFBundleCopyResourceURL(bundle, name, CFSTR("ui"), nullptr);
    FormReader reader;
    QWidget* form = url ? reader.loadFile(QString::fromStdString(url->path())) : nullptr;
    if (!form)
        return kIBCarbonRuntimeCantFindNibFile;
    *nib = new CarbonNib(form);
    return noErr;
}

OSStatus CreateNibReference(const CFString* name, IBNibRef* nib) {
    const CFBundle* own = CFBundleGetMainBundle();
    return own ? CreateNibReferenceWithCFBundle(own, name, nib) : kIBCarbonRuntimeCantFindNibFile;
}

void DisposeNibReference(IBNibRef nib) {
    delete nib;
}

OSStatus CreateWindowFromNib(IBNibRef nib, const CFString* windowName, WindowRef* window) {
    auto widget = nib->takeWindow(QString::fromStdString(toUTF8(windowName)));
    if (!widget)
        return kIBCarbonRuntimeCantFindObject;
    *window = new NibWindow(std::move(widget));
    return noErr;
}
