#pragma once

// "File Types to Scan": all files, or any of executables, macros, scripts
// and the customized types typed in the edit ("exe/dll/doc"). "All files"
// and the four kinds exclude each other: checking it clears them, clearing
// it checks the default kinds, and the kinds check or clear it as none or
// some are left.

#include "pages/FormPage.h"
#include "pages/scan/AdvancedTabPage.h"
#include "ui_Dialog1035.h"

class CFileTypeTabPage : public CFormPage<Ui::Dialog1035, CAdvancedTabPage> {
public:
    static constexpr int kTemplateId = 1035;
    static const AdvancedScanShare kShare;

    CFileTypeTabPage();

protected:
    void BindControls() override;
    int32_t ValidateMore() override;
    void OnControlCommand(int id, ctl::Notification code) override;

private:
    // What a click on "All files" does to the kinds.
    void FollowAllFiles();
    // "All files" follows the kinds.
    void FollowKinds();
    // 0 when the customized types can be kept (made tidy in the edit);
    // otherwise tells why not and answers 1.
    int32_t CheckCustomTypes();
};
