#include "pages/NestedPageShell.h"

#include <utility>

namespace {

NestedPageShell::Maker g_maker;

}  // namespace

NestedPageShell::Maker NestedPageShell::Install(Maker maker) {
    Maker previous = std::move(g_maker);
    g_maker = std::move(maker);
    return previous;
}

std::unique_ptr<NestedPageShell> NestedPageShell::Make(PageId id, uint32_t flags, QWidget* parent) {
    return g_maker ? g_maker(id, flags, parent) : nullptr;
}
