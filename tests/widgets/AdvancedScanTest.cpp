#include "AdvancedScanTest.h"

#include <QPushButton>
#include <QTest>

#include "framework/DialogControls.h"
#include "session/ProcessState.h"

AdvancedScanTest::AdvancedScanTest() : m_savedWinNT(g_bWinNT) { g_bWinNT = 1; }

AdvancedScanTest::~AdvancedScanTest() {
    m_dialog.reset();
    g_bWinNT = m_savedWinNT;
}

CAdvancedScanDlg& AdvancedScanTest::Make(int32_t variant, int32_t noIncremental) {
    m_dialog = std::make_unique<CAdvancedScanDlg>(noIncremental, nullptr);
    m_dialog->m_nVariant = variant;
    return *m_dialog;
}

CAdvancedScanDlg& AdvancedScanTest::Show() {
    EXPECT_TRUE(m_dialog->Create());
    m_dialog->show();
    return *m_dialog;
}

QTabBar* AdvancedScanTest::Tabs() const { return qobject_cast<QTabBar*>(m_dialog->Control(1124)); }

std::vector<std::string> AdvancedScanTest::TabCaptions() const {
    std::vector<std::string> captions;
    for (int i = 0; i < Tabs()->count(); ++i) captions.push_back(Tabs()->tabText(i).toStdString());
    return captions;
}

void AdvancedScanTest::SelectTab(int index) const {
    QTest::mouseClick(Tabs(), Qt::LeftButton, Qt::NoModifier, Tabs()->tabRect(index).center());
}

void AdvancedScanTest::Press(int id) const {
    auto* button = qobject_cast<QPushButton*>(m_dialog->Control(id));
    ASSERT_NE(button, nullptr) << id;
    button->click();
}

QAbstractButton* AdvancedScanTest::Button(const CSettingsPage* page, int id) {
    return qobject_cast<QAbstractButton*>(ctl::Find(page, id));
}

std::string AdvancedScanTest::OnlyMessage() const {
    if (m_messages.messages.size() != 1) return {};
    return m_messages.messages[0].caption + ": " + m_messages.messages[0].text;
}
