#include "pages/targets/ExcludePage.h"

#include <QFileDialog>
#include <QInputDialog>

#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "pages/targets/AddExtensionDlg.h"
#include "pages/targets/AddFolderDlg.h"
#include "q9cfgul.h"
#include "session/ProcessState.h"
#include "targets/ExclusionMatch.h"
#include "targets/ExclusionStore.h"
#include "targets/ExclusionTestMessage.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

namespace {

constexpr uint32_t kNothingSelectedMessage = 1003;
constexpr uint32_t kNoSectorsMessage = 1006;
constexpr uint32_t kNotDeletableMessage = 1031;
constexpr uint32_t kDeleteAllQuestion = 1032;
constexpr uint32_t kAddFilesTitle = 1039;
constexpr uint32_t kTestTitle = 57430;
constexpr uint32_t kTestPrompt = 57431;
constexpr uint32_t kSystemRestoreBit = 0x80000000;
// What a dialog of the page's ends with on OK.
constexpr int kDialogOk = 1;

constexpr StoreAddress kSwitch = {CES_Exclude, CEK_ExcludeEnable};
constexpr StoreAddress kMacroOptions = {CES_Macro, CEK_MacroOptions};

void Say(QWidget* owner, uint32_t message, uint32_t caption, uint32_t type) {
    ShowMessage(owner, LoadString(message), LoadString(caption), type);
}

}  // namespace

CExcludePage::CExcludePage() : CFormPage(kTemplateId, Applies::kYes) {}

bool CExcludePage::StoreIsSource() const { return g_bLevelPending != 0 || m_saved; }

bool CExcludePage::InForce() const { return m_ui.useBox->isChecked(); }

void CExcludePage::BindControls() {
    m_bind.Bit(m_ui.useBox, kSwitch, 1);
    // What saving the list writes besides the switch's bit.
    m_bind.Owns(kSwitch, kWholeWord);
    m_bind.Owns({CES_SystemMonitor, CEK_ScanOptions}, kScanExclusions);
    m_bind.Owns({CES_Internet, CEK_ScanOptions}, kScanExclusions);
    m_bind.Owns(kMacroOptions, kSystemRestoreBit);
    m_bind.OwnsText({CES_Exclude, CEK_ExcludeText});
}

void CExcludePage::PrepareControls() {
    if (!(m_flags & DMF_AssumeNT)) {
        if (m_flags & DMF_Master) {
            m_ui.restoreBox->hide();
        } else if (!g_bWinMeOrLater && !g_bWinXPOrLater) {
            m_ui.restoreBox->setEnabled(false);
        }
    }
    connect(m_ui.restoreBox, &QCheckBox::clicked, this, [this] { MarkModified(); });
    connect(m_ui.addFoldersButton, &QPushButton::clicked, this, [this] { AddFolder(); });
    connect(m_ui.addFilesButton, &QPushButton::clicked, this, [this] { AddFiles(); });
    connect(m_ui.addExtensionsButton, &QPushButton::clicked, this, [this] { AddExtensions(); });
    connect(m_ui.deleteButton, &QPushButton::clicked, this, [this] { DeleteSelected(); });
    connect(m_ui.deleteAllButton, &QPushButton::clicked, this, [this] { DeleteAll(); });
    connect(m_ui.testPathButton, &QPushButton::clicked, this, [this] { TestPath(); });
}

void CExcludePage::ShowMore(const StoreValues& values) {
    m_list = LoadExclusionList(StoreIsSource());
    // The box is shown from the store only where scans can look into those
    // folders; elsewhere saving clears the bit.
    if (IsEnabledAndVisible(m_ui.restoreBox->property("controlId").toInt())) {
        m_ui.restoreBox->setChecked((values.Word(kMacroOptions) & kSystemRestoreBit) != 0);
    }
}

void CExcludePage::UpdateEnables() {
    const int first = m_ui.addFoldersButton->property("controlId").toInt();
    const int last = m_ui.deleteAllButton->property("controlId").toInt();
    EnableRange(first, last, InForce(), true);
    m_list.SetUse(InForce());
    ShowRows();
}

int32_t CExcludePage::ValidateMore() {
    if (!InForce() || !m_list.Empty()) return 0;
    Say(this, kNoSectorsMessage, strings::kConfigurationError, msg::kOk | msg::kIconWarning);
    return 1;
}

void CExcludePage::SaveMore() {
    SaveExclusions(m_list, {InForce(), m_ui.restoreBox->isChecked()});
    m_saved = true;
}

void CExcludePage::Apply() { ApplyExclusions(); }

void CExcludePage::AddFolder() {
    CAddFolderDlg dialog(this);
    if (dialog.DoModal() != kDialogOk) return;
    Add(dialog.GetPath(), ExclusionList::kUserFolder);
}

void CExcludePage::AddFiles() {
    QFileDialog dialog(this, QString::fromStdString(LoadString(kAddFilesTitle)));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    Add(dialog.selectedFiles().first().toStdString(), ExclusionList::kUserFile);
}

void CExcludePage::AddExtensions() {
    CAddExtensionDlg dialog(this);
    if (dialog.DoModal() != kDialogOk) return;
    Add(dialog.GetText(), ExclusionList::kUserExtensions);
}

void CExcludePage::Add(const std::string& text, uint32_t flags) {
    const ExclusionAddition addition = m_list.Add(text, flags, true);
    if (addition.added) ShowRows();
    if (addition.messageId == kNothingSelectedMessage) {
        Say(this, addition.messageId, strings::kConfigurationError, msg::kOk | msg::kIconWarning);
    } else if (addition.messageId != 0) {
        ShowApplicationMessage(this, LoadString(addition.messageId), msg::kOk | msg::kIconWarning);
    }
    MarkModified();
}

void CExcludePage::DeleteSelected() {
    const int selected = m_ui.itemList->SelectedRow();
    if (selected < 0) return;
    switch (m_list.DeleteAt(static_cast<std::size_t>(selected))) {
        case ExclusionDeletion::kDeleted: ListChanged(); break;
        case ExclusionDeletion::kNotTheUsers:
            Say(this, kNotDeletableMessage, strings::kInformation,
                msg::kOk | msg::kIconInformation);
            break;
        case ExclusionDeletion::kNone: break;
    }
}

void CExcludePage::DeleteAll() {
    if (m_list.Empty()) return;
    if (ShowApplicationMessage(this, LoadString(kDeleteAllQuestion),
                               msg::kYesNo | msg::kIconQuestion) != msg::kIdYes) {
        return;
    }
    if (m_list.DeleteAllOwn()) ListChanged();
}

void CExcludePage::ListChanged() {
    ShowRows();
    MarkModified();
}

void CExcludePage::ShowRows() { m_ui.itemList->ShowRows(m_list, m_ui.itemList->SelectedRow()); }

std::string CExcludePage::SelectedPath() const {
    const int selected = m_ui.itemList->SelectedRow();
    if (selected < 0) return {};
    const ExclusionRow& row = m_list.Rows()[static_cast<std::size_t>(selected)];
    return (row.flags & kZonePath) ? row.text : std::string();
}

void CExcludePage::TestPath() {
    bool ok = false;
    const QString path =
        QInputDialog::getText(this, QString::fromStdString(LoadString(kTestTitle)),
                              QString::fromStdString(LoadString(kTestPrompt)), QLineEdit::Normal,
                              QString::fromStdString(SelectedPath()), &ok);
    if (!ok || path.trimmed().isEmpty()) return;
    const std::string tested = path.trimmed().toStdString();
    ShowMessage(this, ExclusionTestMessage(tested, FindExclusion(m_list.Rows(), tested)),
                LoadString(kTestTitle), msg::kOk | msg::kIconInformation);
}
