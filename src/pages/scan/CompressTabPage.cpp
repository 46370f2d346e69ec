#include "pages/scan/CompressTabPage.h"

#include "options/ArchiveKinds.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

namespace {

constexpr StoreAddress kOptions = {CES_SystemScan, CEK_ScanOptions};
constexpr StoreAddress kDepth = {CES_SystemScan, CEK_ScanArchive};
constexpr StoreAddress kKinds = {CES_SystemScan, CEK_ScanArchiveKinds};

constexpr uint32_t kUnlimited = 500;
constexpr uint32_t kLevelFormat = 501;

// The column fits the widest kind's name and the check box before it.
constexpr const char* kColumnSample = "WWWW";
constexpr int kColumnExtra = 22;

// Item i of the combo is depth i; a depth it cannot show reads as item 0
// and is saved so.
WordCodec DepthChoice() {
    return {[](uint32_t depth) { return static_cast<int>(DepthComboIndex(depth)); },
            [](uint32_t /*depth*/, int index) { return static_cast<uint32_t>(index); }, kWholeWord};
}

}  // namespace

const AdvancedScanShare CCompressTabPage::kShare = {
    .options = kScanExeCompressed | kScanCompressed | kScanIncremental, .archive = true};

CCompressTabPage::CCompressTabPage() : CFormPage(kTemplateId) {}

void CCompressTabPage::BindControls() {
    m_bind.Bit(m_ui.compressedBox, kOptions, kScanCompressed);
    m_bind.Combo(m_ui.depthCombo, kDepth, DepthChoice());
    m_bind.Bit(m_ui.exeCompressedBox, kOptions, kScanExeCompressed);
    // Without incremental scanning for the caller the box is hidden and its
    // bit saved clear.
    m_bind.Check(m_ui.incrementalBox, kOptions,
                 {[](uint32_t word) { return (word & kScanIncremental) != 0 ? 1 : 0; },
                  [this](uint32_t word, int index) {
                      return SetBits(word, kScanIncremental, index == 1 && !Values().noIncremental);
                  },
                  kScanIncremental});
    // Radio 0: every kind, whatever the rows say; radio 1: the checked rows.
    m_bind.Radios({m_ui.allKindsRadio, m_ui.listedKindsRadio}, kKinds,
                  {[](uint32_t kinds) { return ArchiveKindsViewOf(kinds).allTypes ? 0 : 1; },
                   [this](uint32_t /*kinds*/, int index) {
                       return CollectArchiveKinds({index == 0, CheckedKinds()});
                   },
                   kWholeWord});
    m_bind.EnableWhen(m_ui.compressedBox,
                      {m_ui.depthLabel, m_ui.depthCombo, m_ui.exeCompressedBox, m_ui.incrementalBox,
                       m_ui.allKindsRadio, m_ui.listedKindsRadio});
    m_bind.EnableWhen(m_ui.listedKindsRadio, {m_ui.kindsList});
}

void CCompressTabPage::PrepareControls() {
    m_ui.depthCombo->addItem(QString::fromStdString(LoadString(kUnlimited)));
    const std::string format = LoadString(kLevelFormat);
    for (int level = 1; level <= static_cast<int>(kMaxArchiveDepth); ++level)
        m_ui.depthCombo->addItem(QString::fromStdString(FormatResource(format.c_str(), level)));
    for (int row = 0; row < kArchiveKindRows; ++row)
        m_ui.kindsList->AddRow(QString::fromLatin1(ArchiveKindName(row)));
    m_ui.kindsList->FitColumnTo(m_ui.kindsList->ColumnWidthFor(kColumnSample, kColumnExtra));
    connect(m_ui.kindsList, &CCheckListCtrl::rowCheckChanged, this, [this] { MarkModified(); });
    m_ui.incrementalBox->setVisible(!Values().noIncremental);
}

void CCompressTabPage::ShowMore(const StoreValues& values) {
    const uint32_t rows = ArchiveKindsViewOf(values.Word(kKinds)).checkedRows;
    for (int row = 0; row < kArchiveKindRows; ++row)
        m_ui.kindsList->SetRowChecked(row, (rows >> row) & 1U);
}

uint32_t CCompressTabPage::CheckedKinds() const {
    uint32_t kinds = 0;
    for (int row = 0; row < kArchiveKindRows; ++row) {
        if (m_ui.kindsList->IsRowChecked(row)) kinds |= uint32_t{1} << row;
    }
    return kinds;
}
