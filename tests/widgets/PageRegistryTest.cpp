// The page registry: every built page is made from the form its row names,
// every form is a page's, a shell's or a dialog's that pages open, and every
// registered page keeps to its own bits of the store, in every edition.

#include <QWidget>
#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "pages/BoundPage.h"
#include "pages/PageRegistry.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "pages/schedule/ScheduleWizardDlg.h"
#include "pages/targets/AddExtensionDlg.h"
#include "pages/targets/AddFolderDlg.h"
#include "pages/targets/ScanListDlg.h"
#include "q9cfgul.h"
#include "session/StoreCommit.h"
#include "shell/ConfigDlg.h"
#include "shell/PageShellDlg.h"
#include "shell/WizardDlg.h"
#include "support/TestPaths.h"

namespace {

// The forms that are not pages: the shells' dialogs.
constexpr std::array<int, 3> kShellTemplates = {CConfigDlg::kTemplateId, CPageShellDlg::kTemplateId,
                                                CWizardDlg::kTemplateId};
// The forms of the dialogs that pages open.
constexpr std::array<int, 6> kPageDialogTemplates = {
    CScanListDlg::kTemplateId,     CAddFolderDlg::kTemplateId,      CAddExtensionDlg::kTemplateId,
    CAdvancedScanDlg::kTemplateId, CScheduleWizardDlg::kTemplateId, CAuthorizationDlg::kTemplateId};

std::vector<PageRow> BuiltRows() {
    std::vector<PageRow> rows;
    for (const PageRow& row : PageRows()) {
        if (row.make != nullptr) rows.push_back(row);
    }
    return rows;
}

// The template ids of the forms in the sources.
std::set<int> FormTemplates() {
    const std::string prefix = "Dialog";
    std::set<int> ids;
    const auto folder = std::filesystem::path(TestPath("source")) / "src/resources/forms";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string stem = entry.path().stem();
        const std::string number = stem.substr(std::min(prefix.size(), stem.size()));
        const bool isForm = entry.path().extension() == ".ui" && stem.rfind(prefix, 0) == 0 &&
                            !number.empty() &&
                            number.find_first_not_of("0123456789") == std::string::npos;
        EXPECT_TRUE(isForm) << "not a form's name: " << entry.path().filename();
        if (isForm) ids.insert(std::stoi(number));
    }
    return ids;
}

class PageRegistryTest : public SwitchPageTest {};

TEST_F(PageRegistryTest, EveryBuiltPageIsMadeFromTheFormOfItsRow) {
    for (const PageRow& row : BuiltRows()) {
        std::unique_ptr<CSettingsPage> page = row.make();
        ASSERT_NE(page, nullptr) << ToInt(row.id);
        ASSERT_TRUE(page->Create(&m_parent)) << ToInt(row.id);
        EXPECT_EQ(page->objectName().toStdString(), "Dialog" + std::to_string(row.templateId))
            << "page " << ToInt(row.id);
    }
}

TEST_F(PageRegistryTest, EveryFormBelongsToABuiltPageAShellOrADialog) {
    std::set<int> used(kShellTemplates.begin(), kShellTemplates.end());
    used.insert(kPageDialogTemplates.begin(), kPageDialogTemplates.end());
    for (const PageRow& row : BuiltRows()) used.insert(row.templateId);
    for (int form : FormTemplates()) EXPECT_EQ(used.count(form), 1U) << "Dialog" << form << ".ui";
}

TEST_F(PageRegistryTest, EveryBuiltRowShellAndDialogHasItsForm) {
    const std::set<int> forms = FormTemplates();
    for (const PageRow& row : BuiltRows())
        EXPECT_EQ(forms.count(row.templateId), 1U) << row.templateId;
    for (int shell : kShellTemplates) EXPECT_EQ(forms.count(shell), 1U) << shell;
    for (int dialog : kPageDialogTemplates) EXPECT_EQ(forms.count(dialog), 1U) << dialog;
}

// --- Bit discipline ---------------------------------------------------------

constexpr uint32_t kLastSection = 17;
constexpr uint32_t kLastKey = 68;

using StoreWords = std::map<StoreAddress, uint32_t>;

struct Discipline {
    PageRow row;
    uint32_t flags;
    uint32_t pattern;
};

void PrintTo(const Discipline& c, std::ostream* out) {
    *out << "page " << ToInt(c.row.id) << ", flags " << c.flags << ", words " << c.pattern;
}

std::string NameOf(const testing::TestParamInfo<Discipline>& info) {
    return "Page" + std::to_string(ToInt(info.param.row.id)) + "Flags" +
           std::to_string(info.param.flags) + (info.param.pattern == 0 ? "Zeros" : "Ones");
}

std::vector<Discipline> Disciplines() {
    std::vector<Discipline> cases;
    for (const PageRow& row : BuiltRows()) {
        for (uint32_t flags : {0U, uint32_t{DMF_IsLight}, uint32_t{DMF_Master},
                               uint32_t{DMF_RemovePopMon}, uint32_t{DMF_RemoveOutlookMon}}) {
            for (uint32_t pattern : {0U, 0xFFFFFFFFU}) cases.push_back({row, flags, pattern});
        }
    }
    return cases;
}

class PageDisciplineTest : public SwitchPageTest, public testing::WithParamInterface<Discipline> {
protected:
    static void FillStore(uint32_t pattern) {
        for (uint32_t section = 0; section <= kLastSection; ++section) {
            for (uint32_t key = 0; key <= kLastKey; ++key) SetWord(section, key, pattern);
        }
    }

    static StoreWords StoreNow() {
        StoreWords words;
        for (uint32_t section = 0; section <= kLastSection; ++section) {
            for (uint32_t key = 0; key <= kLastKey; ++key)
                words[{section, key}] = Word(section, key);
        }
        return words;
    }

    // Every bit that changed outside the page's own, as "section/key: bits".
    static std::vector<std::string> StrayChanges(const StoreWords& before, const StoreWords& after,
                                                 const std::map<StoreAddress, uint32_t>& owned) {
        std::vector<std::string> stray;
        for (const auto& [address, word] : before) {
            const auto it = owned.find(address);
            const uint32_t mine = it == owned.end() ? 0 : it->second;
            const uint32_t changed = (word ^ after.at(address)) & ~mine;
            if (changed != 0) {
                stray.push_back(std::to_string(address.section) + "/" +
                                std::to_string(address.key) + ": " + std::to_string(changed));
            }
        }
        return stray;
    }
};

// Loaded from all-zero or all-one words, set to the factory defaults (whose
// words differ from both) and saved, a page changes its own bits only.
TEST_P(PageDisciplineTest, SaveChangesOnlyThePagesOwnBits) {
    const Discipline& c = GetParam();
    WriteDefaults(
        "[CES_Switch]\nCEK_Switch_Scan=dword:5a\nCEK_Switch_ScanMail=dword:5000\n"
        "[CES_Messenger]\nCEK_MessengerSelect=dword:3\n");
    SetUnregistrable({});
    // Pages work on the store's working copy, as in a session.
    BeginStoreEdit();
    FillStore(c.pattern);
    const StoreWords before = StoreNow();

    std::unique_ptr<CSettingsPage> page = c.row.make();
    page->SetFlags(c.flags);
    ASSERT_TRUE(page->Create(&m_parent));
    auto* bound = dynamic_cast<CBoundPage*>(page.get());
    ASSERT_NE(bound, nullptr) << "a registered page is a bound page";
    page->Load();
    page->Save();
    page->OnDefault();
    page->Save();

    // A text the page writes is its own whole: it no longer reads as a word.
    std::map<StoreAddress, uint32_t> owned = bound->Binder().OwnedWords();
    for (const StoreAddress& text : bound->Binder().OwnedTexts()) owned[text] = kWholeWord;
    for (const std::string& stray : StrayChanges(before, StoreNow(), owned))
        ADD_FAILURE() << "bits changed that the page does not own: " << stray;
    DropWorkingCopy();
}

INSTANTIATE_TEST_SUITE_P(RegisteredPages, PageDisciplineTest, testing::ValuesIn(Disciplines()),
                         NameOf);

}  // namespace
