#include "pages/scan/SwitchPage.h"

#include <Q9CfgE.h>

#include <utility>

#include "framework/MessageService.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "resources/StringTable.h"
#include "session/SiblingLibs.h"

CSwitchPage::CSwitchPage(int templateId, uint32_t wordKey)
    : CSettingsPage(templateId), m_wordKey(wordKey) {}

void CSwitchPage::SetRows(std::vector<Row> rows) { m_rows = std::move(rows); }

void CSwitchPage::Load() {
    uint32_t word = 0;
    for (const Row& row : m_rows) {
        if (g_Siblings.ServiceControl(SC_IsRegistered, row.code, kServiceOption) != 0) {
            word |= SwitchBitOf(row.code);
        }
    }
    ShowWord(word);
    m_modified = 0;
}

void CSwitchPage::ShowWord(uint32_t word) {
    for (const Row& row : m_rows) {
        if (IsEnabledAndVisible(row.id) != 0)
            SetCheck(row.id, (word & SwitchBitOf(row.code)) != 0 ? 1 : 0);
    }
}

void CSwitchPage::DisableUnlessRegistrable(int id, int32_t code) {
    if (g_Siblings.ServiceControl(SC_CanBeRegister, code, kServiceOption) == 0) {
        ctl::Enable(this, id, false);
    }
}

void CSwitchPage::Save() {
    if (m_covered) return;
    uint32_t word = Q9CfgE_GetDWEx(CES_Switch, m_wordKey);
    for (const Row& row : m_rows)
        word = SetBits(word, SwitchBitOf(row.code), GetCheck(row.id) != 0);
    Q9CfgE_SetDWEx(CES_Switch, m_wordKey, word);
    SaveRelated();
    g_Siblings.MarkPending(RowBits(), 0);
    m_needApply = 1;
}

void CSwitchPage::Apply() {
    const uint32_t word = Q9CfgE_GetDWEx(CES_Switch, m_wordKey);
    for (const Row& row : m_rows) {
        if (!AppliesRow(row)) continue;
        const bool on = (word & SwitchBitOf(row.code)) != 0;
        g_Siblings.ServiceControl(on ? SC_Register : SC_Unregister, row.code, kServiceOption);
    }
}

bool CSwitchPage::AppliesRow(const Row& row) const {
    return row.clicked == nullptr || *row.clicked != 0;
}

int32_t CSwitchPage::OnDefault() {
    const uint32_t word = Q9CfgE_GetDefaultDW(CES_Switch, m_wordKey);
    ShowWord(word);
    AfterDefault(word);
    m_modified = 1;
    m_needApply = 1;
    return 1;
}

void CSwitchPage::OnControlCommand(int id, ctl::Notification code) {
    const Row* row = FindRow(id);
    if (row == nullptr || code != ctl::Notification::kClicked) return;
    // The box already shows the click's result.
    if (row->onPrompt != 0 && GetCheck(id) != 0 && !AskYesNo(row->onPrompt)) SetCheck(id, 0);
    OnRowClicked(*row);
    if (row->clicked != nullptr) *row->clicked = 1;
    m_modified = 1;
    m_needApply = 1;
}

const CSwitchPage::Row* CSwitchPage::FindRow(int id) const {
    for (const Row& row : m_rows) {
        if (row.id == id) return &row;
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
