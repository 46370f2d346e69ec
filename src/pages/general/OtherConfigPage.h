#pragma once

// "Other Configurations": how the product tells the user about events (the
// urgent alarm, the tray icon and its messages, the alert sound) and how
// much disk its logs and backups may take. The tray icon is a function of
// the product: its box shows whether the function is registered, Save marks
// its bit pending, and Apply registers or unregisters it.

#include <cstdint>
#include <string>

#include "pages/FormPage.h"
#include "ui_Dialog107.h"

class COtherConfigPage : public CFormPage<Ui::Dialog107> {
public:
    static constexpr int kTemplateId = 107;

    COtherConfigPage();

    void Load() override;
    void Apply() override;
    int32_t OnDefault() override;
    void SetIcons(const ImageList* icons) override;

protected:
    void BindControls() override;
    void PrepareControls() override;
    void SaveMore() override;
    int32_t ValidateMore() override;
    void OnControlCommand(int id, ctl::Notification code) override;

private:
    std::string ProductName() const;
    std::string SoundPath() const;
    // 0 when the sound path names a file; otherwise says why not and
    // answers 1.
    int32_t CheckSoundPath();
    void ChooseSoundFile();
    void PlaySound();
    void OnTrayClicked();
};
