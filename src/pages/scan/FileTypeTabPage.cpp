#include "pages/scan/FileTypeTabPage.h"

#include "options/ExtensionText.h"
#include "options/FileTypes.h"
#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "text/StringTable.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr StoreAddress kOptions = {CES_SystemScan, CEK_ScanOptions};
constexpr StoreAddress kExtensions = {CES_SystemScan, CEK_ScanExtensions};
constexpr int32_t kNoLengthCheck = -1;

// A box of the five as the file type rules show and collect it: "All files"
// alone when bit 8 is set, and bound first, so that the kinds collected
// after it see it and are cleared under it.
WordCodec FileTypeBox(bool FileTypeBoxes::*box, uint32_t bit) {
    return {[box](uint32_t word) { return FileTypeBoxesOf(word).*box ? 1 : 0; },
            [box](uint32_t word, int index) {
                FileTypeBoxes boxes = FileTypeBoxesOf(word);
                boxes.*box = index == 1;
                return CollectFileTypes(word, boxes);
            },
            bit};
}

}  // namespace

const AdvancedScanShare CFileTypeTabPage::kShare = {.options = kScanAllFiles | kScanTypeKinds,
                                                    .extensions = true};

CFileTypeTabPage::CFileTypeTabPage() : CFormPage(kTemplateId) {}

void CFileTypeTabPage::BindControls() {
    m_bind.Check(m_ui.allFilesBox, kOptions, FileTypeBox(&FileTypeBoxes::allFiles, kScanAllFiles));
    m_bind.Check(m_ui.executablesBox, kOptions,
                 FileTypeBox(&FileTypeBoxes::executables, kScanExecutables));
    m_bind.Check(m_ui.macrosBox, kOptions, FileTypeBox(&FileTypeBoxes::macros, kScanMacros));
    m_bind.Check(m_ui.scriptsBox, kOptions, FileTypeBox(&FileTypeBoxes::scripts, kScanScripts));
    m_bind.Check(m_ui.customizedBox, kOptions,
                 FileTypeBox(&FileTypeBoxes::customized, kScanCustomized));
    // Its length is checked with the other rules of the text, in their order.
    m_bind.Text(m_ui.customEdit, kExtensions, kNoLengthCheck);
    m_bind.EnableWhen(m_ui.customizedBox, {m_ui.customEdit});
}

void CFileTypeTabPage::OnControlCommand(int id, ctl::Notification /*code*/) {
    if (id == ctl::IdOf(m_ui.allFilesBox)) {
        FollowAllFiles();
    } else {
        FollowKinds();
    }
    m_bind.ApplyEnableRules();
}

void CFileTypeTabPage::FollowAllFiles() {
    const bool all = m_ui.allFilesBox->isChecked();
    m_ui.executablesBox->setChecked(!all);
    m_ui.macrosBox->setChecked(!all);
    m_ui.scriptsBox->setChecked(!all);
    // Clearing "All files" brings back the default kinds, never the
    // customized types.
    m_ui.customizedBox->setChecked(false);
}

void CFileTypeTabPage::FollowKinds() {
    const bool anyKind = m_ui.executablesBox->isChecked() || m_ui.macrosBox->isChecked() ||
                         m_ui.scriptsBox->isChecked() || m_ui.customizedBox->isChecked();
    m_ui.allFilesBox->setChecked(!anyKind);
}

int32_t CFileTypeTabPage::ValidateMore() {
    return m_ui.customizedBox->isChecked() ? CheckCustomTypes() : 0;
}

int32_t CFileTypeTabPage::CheckCustomTypes() {
    const std::string text = m_ui.customEdit->text().toStdString();
    const ExtensionTextProblem problem = CheckExtensionText(text);
    switch (problem) {
        case ExtensionTextProblem::None:
            m_ui.customEdit->setText(QString::fromStdString(NormalizeExtensionText(text)));
            return 0;
        case ExtensionTextProblem::TooLong:
            return Refuse(m_ui.customEdit,
                          LengthMessageText(static_cast<int32_t>(kMaxExtensionText)));
        default: return Refuse(m_ui.customEdit, LoadString(ExtensionTextMessageId(problem)));
    }
}
