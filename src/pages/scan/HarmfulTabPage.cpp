#include "pages/scan/HarmfulTabPage.h"

#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "q9cfgul.h"
#include "text/StringTable.h"

namespace {

constexpr StoreAddress kOptions = {CES_SystemScan, CEK_ScanOptions};
constexpr StoreAddress kKinds = {CES_Macro, CEK_MacroOptions};

constexpr uint32_t kNoHarmfulKind = 1045;

// The hidden adware row and the distance the row below moves up.
constexpr int kAdwareRowControls = 2;  // the box and its description
constexpr int kRowHeight = 45;

}  // namespace

const AdvancedScanShare CHarmfulTabPage::kShare = {.options = kScanHarmful,
                                                   .harmful = kHarmfulKinds};

CHarmfulTabPage::CHarmfulTabPage() : CFormPage(kTemplateId) {}

void CHarmfulTabPage::BindControls() {
    const bool master = (m_flags & DMF_Master) != 0;
    m_bind.Bit(m_ui.harmfulBox, kOptions, kScanHarmful);
    m_bind.Bit(m_ui.jokeBox, kKinds, kHarmfulJoke);
    m_bind.Bit(m_ui.keyLoggerBox, kKinds, kHarmfulKeyLogger);
    // The master edition never takes adware from the word.
    m_bind.Check(
        m_ui.adwareBox, kKinds,
        {[master](uint32_t word) { return !master && (word & kHarmfulAdware) != 0 ? 1 : 0; },
         [](uint32_t word, int index) { return SetBits(word, kHarmfulAdware, index == 1); },
         kHarmfulAdware});
    m_bind.Bit(m_ui.otherBox, kKinds, kHarmfulOther);
    m_bind.EnableWhen(m_ui.harmfulBox,
                      {m_ui.jokeBox, m_ui.jokeText, m_ui.keyLoggerBox, m_ui.keyLoggerText,
                       m_ui.adwareBox, m_ui.adwareText, m_ui.otherBox, m_ui.otherText});
}

void CHarmfulTabPage::PrepareControls() {
    const int adware = ctl::IdOf(m_ui.adwareBox);
    const int other = ctl::IdOf(m_ui.otherBox);
    ShowCount(adware, kAdwareRowControls, false, true);
    MoveRange(other, -1, 0, -kRowHeight);
}

int32_t CHarmfulTabPage::ValidateMore() {
    if (!m_ui.harmfulBox->isChecked()) return 0;
    for (const QAbstractButton* kind :
         {m_ui.jokeBox, m_ui.keyLoggerBox, m_ui.adwareBox, m_ui.otherBox}) {
        if (kind->isChecked()) return 0;
    }
    return Refuse(m_ui.jokeBox, LoadString(kNoHarmfulKind));
}
