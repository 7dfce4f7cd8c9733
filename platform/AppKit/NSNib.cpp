// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSNib.h"

#include "platform/AppKit/detail/FormLoader.h"
#include "platform/AppKit/detail/NibWiring.h"

#include <QWidget>

NSNib::NSNib() = default;

// The widgets go first: they call the views, and never the other way round.
NSNib::~NSNib() {
    delete form_;
}

bool NSNib::instantiate(const std::string& path, NSObject& owner,
                        std::vector<std::string>& errors) {
    FormLoader loader;
    form_ = loader.loadForm(QString::fromStdString(path));
    QStringList found = loader.errors();
    if (form_) {
        QObject::connect(form_, &QObject::destroyed, [this] { form_ = nullptr; });
        NibWiring wiring(owner, objects_);
        view_ = wiring.wireForm(form_);
        found << wiring.errors();
    }
    for (const QString& error : found)
        errors.push_back(path + ": " + error.toStdString());
    if (!found.isEmpty())
        return false;

    for (std::size_t made = 0; made < objects_.size(); ++made)
        objects_[made]->awakeFromNib();
    owner.awakeFromNib();
    return true;
}
