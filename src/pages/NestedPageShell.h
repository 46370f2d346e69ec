#pragma once

// A page of a page's own, shown in a nested single-page dialog of the open
// session ("more..." on a page). The dialog belongs to the shell layer,
// which pages may not use: the shell installs the maker at the session's
// start, and a page asks for a dialog through Make. The page keeps the
// dialog, so that its page object and what was saved survive between
// openings, and forwards to it: after its own Save, SavePage; from its own
// Apply, ApplyPage.

#include <cstdint>
#include <functional>
#include <memory>

#include "session/PageId.h"

class QWidget;

class NestedPageShell {
public:
    using Maker =
        std::function<std::unique_ptr<NestedPageShell>(PageId id, uint32_t flags, QWidget* parent)>;

    virtual ~NestedPageShell() = default;

    // Shows the dialog modally; 1 for OK, 2 for Cancel.
    virtual int32_t Run() = 0;
    // The page's Save when it is modified; its Apply when it needs one.
    virtual void SavePage() = 0;
    virtual void ApplyPage() = 0;

    // Installs the maker (an empty one removes it); returns the previous one.
    static Maker Install(Maker maker);
    // A nested dialog for page id with the session flags, child of parent;
    // null while no maker is installed.
    static std::unique_ptr<NestedPageShell> Make(PageId id, uint32_t flags, QWidget* parent);
};
