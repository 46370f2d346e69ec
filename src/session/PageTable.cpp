#include "session/PageTable.h"

#include "pages/scan/FeatureSwitchPage.h"
#include "pages/scan/MailSwitchPage.h"
#include "resources/StringTable.h"
#include "session/ProcessState.h"

namespace {

struct PageRow {
    int templateId;
    uint32_t titleId;  // 0: no title
};

// By page id. The schedule scan page (22) has a second template on NT hosts.
constexpr PageRow kPageRows[CPageTable::kPageCount] = {
    {1013, 17},    {111, 4},      {111, 4},      {114, 7},      {113, 6},      {115, 8},
    {117, 13},     {117, 16},     {1014, 18},    {1015, 19},    {1011, 9},     {116, 15},
    {119, 11},     {118, 10},     {119, 11},     {107, 20},     {109, 2},      {108, 14},
    {110, 3},      {1003, 0},     {1004, 0},     {1008, 0},     {1010, 0},     {1030, 1},
    {1032, 21},    {1031, 22},    {1033, 23},    {1036, 24},    {1035, 25},    {1039, 27},
    {1037, 26},    {1040, 28},    {1041, 57358}, {1049, 57359}, {1045, 57362}, {1048, 57360},
    {1051, 57363}, {1052, 57364}, {1053, 57365}, {1054, 57370}, {1055, 57413},
};

constexpr int kScheduleScanPage = 22;
constexpr int kScheduleScanTemplateNT = 1016;

bool IsPageId(int id) { return id >= 0 && id < CPageTable::kPageCount; }

size_t Slot(int id) { return static_cast<size_t>(id); }

}  // namespace

CPageTable::CPageTable(PageFactory factory) : factory_(std::move(factory)) {}

CPageTable::~CPageTable() { DestroyAll(); }

CSettingsPage* CPageTable::Find(int id) const { return IsPageId(id) ? pages_[Slot(id)].data() : nullptr; }

CSettingsPage* CPageTable::Create(int id, uint32_t flags, QWidget* parent) {
    if (!IsPageId(id)) return nullptr;
    Destroy(id);
    CSettingsPage* page = factory_ ? factory_(id) : nullptr;
    if (!page) return nullptr;
    page->SetFlags(flags);
    if (!page->Create(parent)) {
        delete page;
        return nullptr;
    }
    pages_[Slot(id)] = page;
    return page;
}

CSettingsPage* CPageTable::Attach(int id, QWidget* parent) {
    CSettingsPage* page = Find(id);
    if (page && page->parentWidget() != parent) page->setParent(parent);
    return page;
}

void CPageTable::Destroy(int id) {
    if (!IsPageId(id)) return;
    delete pages_[Slot(id)].data();
    pages_[Slot(id)] = nullptr;
}

void CPageTable::DestroyAll() {
    for (int id = kPageCount - 1; id >= 0; --id) Destroy(id);
}

PageFactory CPageTable::ProgramPages() {
    return [](int id) -> CSettingsPage* {
        switch (id) {
            case 0: return new CFeatureSwitchPage(TemplateOf(id));
            case 8: return new CMailSwitchPage(TemplateOf(id));
            default: return nullptr;
        }
    };
}

int CPageTable::TemplateOf(int id) {
    if (!IsPageId(id)) return 0;
    if (id == kScheduleScanPage && g_bWinNT) return kScheduleScanTemplateNT;
    return kPageRows[Slot(id)].templateId;
}

uint32_t CPageTable::TitleIdOf(int id) { return IsPageId(id) ? kPageRows[Slot(id)].titleId : 0; }

std::string CPageTable::TitleOf(int id) {
    const uint32_t title = TitleIdOf(id);
    return title ? LoadString(title) : std::string();
}
