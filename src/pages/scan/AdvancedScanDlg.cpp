#include "pages/scan/AdvancedScanDlg.h"

#include <QSignalBlocker>

#include "pages/PageRegistry.h"
#include "pages/scan/AdvancedTabPage.h"
#include "pages/scan/CompressTabPage.h"
#include "pages/scan/FileTypeTabPage.h"
#include "pages/scan/HarmfulTabPage.h"
#include "pages/scan/ScanMethodTabPage.h"
#include "pages/scan/ScanOptionTabPage.h"
#include "text/StringTable.h"

namespace {

using enum PageId;

AdvancedScanShare ShareOf(PageId tab) {
    switch (tab) {
        case kCompressTab: return CCompressTabPage::kShare;
        case kFileTypeTab: return CFileTypeTabPage::kShare;
        case kScanMethodTab: return CScanMethodTabPage::kShare;
        case kScanOptionTab: return CScanOptionTabPage::kShare;
        case kHarmfulTab: return CHarmfulTabPage::kShare;
        default: return {};
    }
}

const std::vector<PageId>& TabsOf(int32_t variant) {
    static const std::vector<PageId> kBasic = {kFileTypeTab, kCompressTab};
    static const std::vector<PageId> kSystemScan = {kFileTypeTab, kCompressTab, kScanMethodTab,
                                                    kHarmfulTab};
    static const std::vector<PageId> kMonitor = {kFileTypeTab, kScanOptionTab};
    static const std::vector<PageId> kFileTypesOnly = {kFileTypeTab};
    switch (variant) {
        case kAdvancedSystemScan: return kSystemScan;
        case kAdvancedMonitor: return kMonitor;
        case kAdvancedFileTypesOnly: return kFileTypesOnly;
        default: return kBasic;
    }
}

}  // namespace

AdvancedScanShare AdvancedScanShareOf(int32_t variant) {
    AdvancedScanShare share;
    for (PageId tab : TabsOf(variant)) share |= ShareOf(tab);
    return share;
}

CAdvancedScanDlg::CAdvancedScanDlg(int32_t noIncremental, QWidget* parent)
    : CFormDialog(kTemplateId, parent), m_bNoIncremental(noIncremental) {}

CAdvancedScanDlg::~CAdvancedScanDlg() = default;

bool CAdvancedScanDlg::OnInitDialog() {
    // A dialog that runs again starts with no tab made.
    DestroyTabs();
    InsertTabs();
    connect(m_ui.tabs, &QTabBar::currentChanged, this, &CAdvancedScanDlg::OnTabChanged,
            Qt::UniqueConnection);
    m_nCurrentTab = 0;
    ShowTab(0);
    return true;
}

void CAdvancedScanDlg::DestroyTabs() {
    const QSignalBlocker quiet(m_ui.tabs);
    while (m_ui.tabs->count() > 0) m_ui.tabs->removeTab(0);
    m_pages.clear();
}

void CAdvancedScanDlg::InsertTabs() {
    const QSignalBlocker quiet(m_ui.tabs);
    for (PageId id : TabsOf(m_nVariant)) {
        const uint32_t title = PageRowOf(id).titleId;
        const int index =
            m_ui.tabs->addTab(QString::fromStdString(title ? LoadString(title) : std::string()));
        m_ui.tabs->setTabData(index, ToInt(id));
        m_pages.emplace_back();
    }
    m_ui.tabs->setCurrentIndex(0);
}

void CAdvancedScanDlg::OnTabChanged(int index) {
    if (index == m_nCurrentTab) return;
    CAdvancedTabPage* current = CurrentTab();
    if (current && current->Validate() != 0) {
        const QSignalBlocker quiet(m_ui.tabs);
        m_ui.tabs->setCurrentIndex(m_nCurrentTab);
        return;
    }
    if (current) current->hide();
    m_nCurrentTab = index;
    ShowTab(index);
}

void CAdvancedScanDlg::ShowTab(int index) {
    if (index < 0 || index >= static_cast<int>(m_pages.size())) return;
    std::unique_ptr<CAdvancedTabPage>& page = m_pages[static_cast<size_t>(index)];
    if (!page) page = MakeTab(static_cast<PageId>(m_ui.tabs->tabData(index).toInt()));
    if (page) page->show();
}

std::unique_ptr<CAdvancedTabPage> CAdvancedScanDlg::MakeTab(PageId id) {
    const PageMaker make = PageRowOf(id).make;
    std::unique_ptr<CSettingsPage> made = make ? make() : nullptr;
    if (dynamic_cast<CAdvancedTabPage*>(made.get()) == nullptr) return nullptr;
    std::unique_ptr<CAdvancedTabPage> page(static_cast<CAdvancedTabPage*>(made.release()));
    // The values are the page's before its window's start-up loads them.
    page->Values() = CurrentValues();
    page->SetFlags(m_dwFlags);
    if (!page->Create(this)) return nullptr;
    // At the top of the display area, centred across it.
    const QRect area = m_ui.displayArea->geometry();
    page->move(area.left() + (area.width() - page->width()) / 2, area.top());
    return page;
}

CAdvancedTabPage* CAdvancedScanDlg::CurrentTab() const {
    if (m_nCurrentTab < 0 || m_nCurrentTab >= static_cast<int>(m_pages.size())) return nullptr;
    return m_pages[static_cast<size_t>(m_nCurrentTab)].get();
}

void CAdvancedScanDlg::OnCommand(int id) {
    if (id == kDefaultButton) {
        if (CAdvancedTabPage* current = CurrentTab()) current->OnDefault();
        return;
    }
    CFormDialog::OnCommand(id);
}

void CAdvancedScanDlg::OnOK() {
    if (CAdvancedTabPage* current = CurrentTab(); current && current->Validate() != 0) return;
    // Every tab is handed every value but saves only its own, so that what
    // comes back differs in those alone.
    for (const std::unique_ptr<CAdvancedTabPage>& page : m_pages) {
        if (!page || page->IsModified() == 0) continue;
        page->Values() = CurrentValues();
        page->Save();
        TakeBack(page->Values());
        m_bChanged = 1;
    }
    CFormDialog::OnOK();
}

AdvancedScanValues CAdvancedScanDlg::CurrentValues() const {
    AdvancedScanValues values;
    values.options = m_dwOptions;
    values.extra = m_dwExtra;
    values.depth = static_cast<uint32_t>(m_nDepth);
    values.kinds = m_dwKinds;
    values.extensions = m_strExtensions;
    values.harmful = m_dwHarmful;
    values.noIncremental = m_bNoIncremental != 0;
    return values;
}

void CAdvancedScanDlg::TakeBack(const AdvancedScanValues& values) {
    m_dwOptions = values.options;
    m_dwExtra = values.extra;
    m_nDepth = static_cast<int32_t>(values.depth);
    m_dwKinds = values.kinds;
    m_strExtensions = values.extensions;
    m_dwHarmful = values.harmful;
}
