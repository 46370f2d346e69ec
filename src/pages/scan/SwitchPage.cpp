#include "pages/scan/SwitchPage.h"

#include <QAbstractButton>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/RegisteredValues.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

CSwitchPage::CSwitchPage(int templateId, uint32_t wordKey)
    : CBoundPage(templateId, Applies::kYes), m_wordKey(wordKey) {}

StoreAddress CSwitchPage::Word() const { return {CES_Switch, m_wordKey}; }

void CSwitchPage::BindControls() {
    m_rows = Rows();
    for (const Row& row : m_rows) {
        m_bind.Bit(row.box, Word(), SwitchBitOf(row.code), BitSense::kCheckedWhenSet,
                   BitShow::kWhenAvailable);
    }
}

void CSwitchPage::Load() {
    std::vector<int32_t> codes;
    for (const Row& row : m_rows) codes.push_back(row.code);
    LoadFrom(RegisteredValues(Context().Siblings(), Word(), codes));
}

void CSwitchPage::DisableUnlessRegistrable(QAbstractButton* box, int32_t code) {
    if (Context().Siblings().ServiceControl(SC_CanBeRegister, code, kServiceOption) == 0)
        box->setEnabled(false);
}

void CSwitchPage::SaveMore() {
    SaveRelated();
    Context().Siblings().MarkPending(RowBits(), 0);
    m_needApply = 1;
}

void CSwitchPage::Apply() {
    const uint32_t word = StoreValues().Word(Word());
    for (const Row& row : m_rows) {
        if (AppliesRow(row)) RegisterAsSwitched(Context().Siblings(), row.code, word);
    }
}

bool CSwitchPage::AppliesRow(const Row& row) const {
    return row.clicked == nullptr || *row.clicked != 0;
}

int32_t CSwitchPage::OnDefault() {
    CBoundPage::OnDefault();
    AfterDefault(DefaultValues().Word(Word()));
    return 1;
}

void CSwitchPage::OnControlCommand(int id, ctl::Notification code) {
    const Row* row = FindRow(id);
    if (row == nullptr || code != ctl::Notification::kClicked) return;
    // The box already shows the click's result.
    if (row->onPrompt != 0 && row->box->isChecked() && !AskYesNo(row->onPrompt))
        row->box->setChecked(false);
    OnRowClicked(*row);
    if (row->clicked != nullptr) *row->clicked = 1;
}

const CSwitchPage::Row* CSwitchPage::FindRow(int id) const {
    for (const Row& row : m_rows) {
        if (ctl::IdOf(row.box) == id) return &row;
    }
    return nullptr;
}

bool CSwitchPage::AskYesNo(uint32_t textId) {
    return ShowMessage(this, LoadString(textId), LoadString(strings::kInformation),
                       msg::kYesNo | msg::kIconInformation) == msg::kIdYes;
}

uint32_t CSwitchPage::RowBits() const {
    uint32_t bits = 0;
    for (const Row& row : m_rows) bits |= SwitchBitOf(row.code);
    return bits;
}
