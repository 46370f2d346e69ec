#include "SwitchPageTest.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <filesystem>

#include "framework/DialogControls.h"
#include "pages/SettingsPage.h"

namespace {

std::string CodeLines(const std::string& key, std::initializer_list<int32_t> codes) {
    std::string text;
    for (int32_t code : codes) text += std::to_string(code) + '=' + key + '\n';
    return text;
}

}  // namespace

SwitchPageTest::SwitchPageTest() { AddSibling("Q9SSCtrl"); }

void SwitchPageTest::SetUnregistrable(std::initializer_list<int32_t> codes) const {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n" + CodeLines("0", codes));
}

void SwitchPageTest::SetRegistered(std::initializer_list<int32_t> codes) const {
    Install().Write("Q9SSCtrl.state", "[Registered]\n" + CodeLines("1", codes));
}

void SwitchPageTest::WriteDefaults(const std::string& body) const {
    Install().Write("Q9CfgDef.dat", "Q9 Configuration Store 1\n" + body);
}

void SwitchPageTest::ClearJournal() const {
    std::filesystem::remove(Install().PathOf("Q9SSCtrl.journal"));
}

std::vector<std::string> SwitchPageTest::CallsOf(const std::string& entryPoint) const {
    std::vector<std::string> calls;
    const std::string prefix = entryPoint + '\t';
    for (const std::string& line : Journal()) {
        if (line.rfind(prefix, 0) == 0) calls.push_back(line.substr(prefix.size()));
    }
    return calls;
}

void SwitchPageTest::Click(CSettingsPage* page, int id) {
    auto* box = qobject_cast<QAbstractButton*>(ctl::Find(page, id));
    ASSERT_NE(box, nullptr) << id;
    box->click();
}

bool SwitchPageTest::IsChecked(const CSettingsPage* page, int id) {
    return ctl::GetCheck(page, id) == 1;
}

std::string SwitchPageTest::CoverText(const CSettingsPage* page) {
    // Frames without an id of their own share the notice's id: the notice
    // is the label among them that is shown.
    for (const QLabel* label : page->findChildren<QLabel*>()) {
        if (ctl::IdOf(label) == CSettingsPage::kCoverNoticeId && label->isVisibleTo(page))
            return label->text().toStdString();
    }
    return {};
}

void SwitchPageTest::Choose(CSettingsPage* page, int id, int index) {
    auto* combo = qobject_cast<QComboBox*>(ctl::Find(page, id));
    ASSERT_NE(combo, nullptr) << id;
    ASSERT_LT(index, combo->count()) << id;
    combo->setCurrentIndex(index);
    emit combo->activated(index);
}

int SwitchPageTest::ChosenItem(const CSettingsPage* page, int id) {
    const auto* combo = qobject_cast<const QComboBox*>(ctl::Find(page, id));
    return combo ? combo->currentIndex() : -2;
}

std::vector<std::string> SwitchPageTest::ItemsOf(const CSettingsPage* page, int id) {
    std::vector<std::string> items;
    if (const auto* combo = qobject_cast<const QComboBox*>(ctl::Find(page, id))) {
        for (int i = 0; i < combo->count(); ++i) items.push_back(combo->itemText(i).toStdString());
    }
    return items;
}

bool SwitchPageTest::IsShown(const CSettingsPage* page, int id) { return ctl::IsShown(page, id); }

bool SwitchPageTest::IsEnabled(const CSettingsPage* page, int id) {
    return ctl::IsEnabled(page, id);
}

QPoint SwitchPageTest::PositionOf(const CSettingsPage* page, int id) {
    const QWidget* control = ctl::Find(page, id);
    return control ? control->pos() : QPoint(-1, -1);
}

QWidget* SwitchPageTest::ControlAfter(const CSettingsPage* page, int id) {
    const std::vector<QWidget*> children = ctl::Children(page);
    for (size_t i = 0; i + 1 < children.size(); ++i) {
        if (ctl::IdOf(children[i]) == id) return children[i + 1];
    }
    return nullptr;
}

std::string SwitchPageTest::Registered(int32_t code) {
    return JournalLine("Q9SSCtrl_Register", code, "", 1);
}

std::string SwitchPageTest::Unregistered(int32_t code) {
    return JournalLine("Q9SSCtrl_Unregister", code, "5000 2", 1);
}
