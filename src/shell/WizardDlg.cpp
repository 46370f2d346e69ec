#include "shell/WizardDlg.h"

#include <QPixmap>
#include <QPushButton>

#include "Q9CfgE.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/SettingsPage.h"
#include "policy/ConfigurationApply.h"
#include "policy/WizardDefaults.h"
#include "q9cfgul.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "session/StoreCommit.h"
#include "shell/SaveFailure.h"
#include "text/StringTable.h"

namespace {

constexpr uint32_t kLevelText = 205;
constexpr uint32_t kScanText = 200;
constexpr uint32_t kFeatureText = 201;
constexpr uint32_t kScheduleText = 202;

const char kPictureFile[] = "Resource/Wizard.bmp";

// The gap between the step text and the page below it.
constexpr int kPageGap = 4;

void WriteProtectLevel() { Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, g_nProtectLevel); }

}  // namespace

CWizardDlg::CWizardDlg(uint32_t flags, QWidget* parent, PageFactory factory)
    : CFormDialog(kTemplateId, parent),
      m_dlgFlags(flags),
      m_pages(std::move(factory)),
      m_pageIcons(ImageList::PageIcons()) {}

CWizardDlg::~CWizardDlg() {
    // Pages go first: they may still reach the dialog's controls.
    m_pages.DestroyAll();
}

CSettingsPage* CWizardDlg::CurrentPage() const {
    if (m_step < 0 || m_step >= StepCount()) return nullptr;
    return m_pages.Find(ToInt(m_steps[static_cast<size_t>(m_step)].page));
}

bool CWizardDlg::OnInitDialog() {
    BeginStoreEdit();
    LoadPicture();
    ChooseSteps();
    m_step = 0;
    ShowStep();
    // The wizard starts on the factory level, whatever the product had.
    if (CSettingsPage* page = CurrentPage()) page->OnDefault();
    UpdateButtons();
    return true;
}

void CWizardDlg::LoadPicture() {
    // A missing picture leaves the space empty.
    m_ui.picture->setPixmap(QPixmap(QString::fromStdString(g_szModuleDir + kPictureFile)));
}

void CWizardDlg::ChooseSteps() {
    m_steps = {{PageId::kEasyConfig, kLevelText},
               {PageId::kWizardScan, kScanText},
               {PageId::kWizardFeature, kFeatureText}};
    // The light edition has no scheduled scans.
    if (!(m_dlgFlags & DMF_IsLight)) m_steps.push_back({PageId::kSchedule, kScheduleText});
}

void CWizardDlg::ShowStep() {
    const Step& step = m_steps[static_cast<size_t>(m_step)];
    if (CSettingsPage* page = ShowPage(step.page)) {
        page->show();
        page->repaint();
    }
    m_ui.stepText->setText(QString::fromStdString(LoadString(step.textId)));
    m_ui.stepNumber->setText(QStringLiteral("%1.").arg(m_step + 1));
    UpdateButtons();
    // The page has read its files by now.
    m_unreadableFiles.ShowNewLater(this);
}

// The page of id loaded again, or made and placed under the step text.
CSettingsPage* CWizardDlg::ShowPage(PageId id) {
    if (CSettingsPage* page = m_pages.Find(ToInt(id))) {
        page->Load();
        return page;
    }
    CSettingsPage* page = m_pages.Create(ToInt(id), m_dlgFlags, this);
    if (!page) return nullptr;
    page->SetIcons(&m_pageIcons);
    const QRect text = m_ui.stepText->geometry();
    page->move(m_ui.stepNumber->x(), text.bottom() + 1 + kPageGap);
    page->setEnabled(true);
    return page;
}

// The first step leads on only to a customized level; a finish is always
// possible.
void CWizardDlg::UpdateButtons() {
    const bool first = m_step == 0;
    const bool last = m_step + 1 >= StepCount();
    const bool canGoOn = first ? g_nProtectLevel == kProtectLevelCustomized : !last;
    m_ui.backButton->setEnabled(!first);
    m_ui.nextButton->setEnabled(canGoOn);
    m_ui.nextButton->setDefault(canGoOn);
    m_ui.finishButton->setDefault(!canGoOn);
}

void CWizardDlg::OnPageMessage(int message) {
    if (message == CSettingsPage::kLevelChangedMessage) UpdateButtons();
}

void CWizardDlg::OnCommand(int id) {
    switch (id) {
        case kBackButton: Turn(-1); return;
        case kNextButton: Turn(1); return;
        default: CFormDialog::OnCommand(id);
    }
}

// Leaving a step either way validates and saves its page.
void CWizardDlg::Turn(int delta) {
    const int next = m_step + delta;
    if (next < 0 || next >= StepCount()) return;
    if (!SaveCurrent()) return;
    if (CSettingsPage* page = CurrentPage()) {
        page->SaveScheduleDefaults();
        page->hide();
    }
    m_step = next;
    ShowStep();
}

bool CWizardDlg::SaveCurrent() {
    CSettingsPage* page = CurrentPage();
    if (!page) return true;
    if (page->Validate() != 0) return false;
    page->Save();
    return true;
}

void CWizardDlg::OnOK() {
    g_Log.Write("OnOK Start");
    if (CSettingsPage* page = CurrentPage()) {
        if (page->Validate() != 0) return;
        g_Log.Write("pDlg->OnApply() Start");
        page->Save();
        g_Log.Write("pDlg->OnApply() End");
    }
    m_unreadableFiles.ShowNew(this);
    g_Log.Write("Q9CfgE_UnlockEx() Start");
    if (!CommitOrReport(this)) return;
    g_Log.Write("Q9CfgE_UnlockEx() End");
    g_Log.Write("Q9CfgE_FlushEx() End");
    // Applying brings every function in line with the store; no page's own
    // Apply is needed.
    ApplyConfiguration(nullptr, nullptr, 1);
    WriteProtectLevel();
    g_Log.Write("_On_NORMAL_SILENCE() End");
    WriteProtectLevel();
    g_Log.Write("Q9CfgE_SetDWEx() End");
    // Applying told the services already; they are told once more.
    g_Siblings.ServiceControl(SC_SetCfgChanged, SSCT_SYSTEM_MONITOR, kServiceOption);
    EndDialog(1);
}

void CWizardDlg::OnCancel() {
    ApplyWizardDefaults(m_dlgFlags);
    EndDialog(2);
}
