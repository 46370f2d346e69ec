#include "shell/ModeRunners.h"

#include "framework/GuiApplication.h"
#include "shell/ConfigDlg.h"
#include "shell/PageShellDlg.h"
#include "shell/WizardDlg.h"

// The caller's window is a window of another toolkit, often of another
// process: the dialogs are top-level windows of their own.
int32_t RunConfigDialog(uint64_t, uint32_t flags, int32_t page, int32_t* lastPage) {
    if (!EnsureGuiApplication()) return CDialog::kNotMade;
    CConfigDlg dialog(page, flags, nullptr);
    const int32_t result = dialog.DoModal();
    if (lastPage) *lastPage = dialog.CurrentPage();
    return result;
}

int32_t RunWizard(uint64_t, uint32_t flags) {
    if (!EnsureGuiApplication()) return CDialog::kNotMade;
    CWizardDlg dialog(flags, nullptr);
    return dialog.DoModal();
}

int32_t RunSinglePage(uint64_t, uint32_t flags, int32_t page) {
    if (!EnsureGuiApplication()) return CDialog::kNotMade;
    CPageShellDlg dialog(page, flags, nullptr);
    return dialog.DoModal();
}
