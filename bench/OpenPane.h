// SPDX-License-Identifier: MIT
#pragma once

#include "src/pane/VLDKorvexPane.h"

class QWidget;

/// The pane, shown as by the host, for as long as the program runs. The receiving process (Peer.h)
/// is its agent.
class OpenPane {
public:
    static OpenPane& instance();

    QWidget& window() const { return *window_; }

    /// The window's part with that name. Ends the program when there is none.
    template <class Part>
    Part& part(const char* name) const;

    /// Shows the section with that part.
    void showSectionOf(const QWidget& part) const;

private:
    OpenPane();

    CFRef<CFBundle> bundle_;
    VLDKorvexPane pane_;
    QWidget* window_;
};
