#pragma once

// A control of the program's own that is not a button but reports a click to
// its dialog as a button does, such as a link whose click the page handles:
// ConnectControl hands it the report, and the control makes it when the
// user clicks it.

#include <functional>

#include "framework/DialogControls.h"

namespace ctl {

class NotifyingControl {
public:
    using Report = std::function<void(Notification code)>;

    virtual ~NotifyingControl() = default;

    // Where the control's user actions go from now on.
    virtual void ReportTo(Report report) = 0;
};

}  // namespace ctl
