#include "shell/PageTable.h"

#include "pages/PageRegistry.h"
#include "session/ProcessState.h"
#include "text/StringTable.h"

namespace {

size_t Slot(int id) { return static_cast<size_t>(id); }

}  // namespace

CPageTable::CPageTable(PageFactory factory) : m_factory(std::move(factory)) {}

CPageTable::~CPageTable() { DestroyAll(); }

CSettingsPage* CPageTable::Find(int id) const {
    return IsPageId(id) ? m_pages[Slot(id)].data() : nullptr;
}

CSettingsPage* CPageTable::Create(int id, uint32_t flags, QWidget* parent) {
    if (!IsPageId(id)) return nullptr;
    Destroy(id);
    std::unique_ptr<CSettingsPage> page = m_factory ? m_factory(id) : nullptr;
    if (!page) return nullptr;
    page->SetFlags(flags);
    if (!page->Create(parent)) return nullptr;
    m_pages[Slot(id)] = page.get();
    return page.release();  // owned by its slot (and its parent window) from now on
}

CSettingsPage* CPageTable::Attach(int id, QWidget* parent) {
    CSettingsPage* page = Find(id);
    if (page && page->parentWidget() != parent) page->setParent(parent);
    return page;
}

void CPageTable::Destroy(int id) {
    if (!IsPageId(id)) return;
    delete m_pages[Slot(id)].data();
    m_pages[Slot(id)] = nullptr;
}

void CPageTable::DestroyAll() {
    for (int id = kPageCount - 1; id >= 0; --id) Destroy(id);
}

PageFactory CPageTable::ProgramPages() {
    return [](int id) -> std::unique_ptr<CSettingsPage> {
        const PageMaker make = PageRowOf(static_cast<PageId>(id)).make;
        return make ? make() : nullptr;
    };
}

int CPageTable::TemplateOf(int id) {
    return IsPageId(id) ? PageTemplate(static_cast<PageId>(id), g_bWinNT != 0) : 0;
}

uint32_t CPageTable::TitleIdOf(int id) {
    return IsPageId(id) ? PageRowOf(static_cast<PageId>(id)).titleId : 0;
}

std::string CPageTable::TitleOf(int id) {
    const uint32_t title = TitleIdOf(id);
    return title ? LoadString(title) : std::string();
}
