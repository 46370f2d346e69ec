#pragma once

// "Security configuration": the product's own password, and the actions
// that need it. The password is kept enciphered by the store; the page shows
// it in two password fields (the second to confirm it) and never writes it
// anywhere else. Switching the functions off empties the password, so that
// switching them on again needs a new one. Default changes the switches and
// leaves the password fields as they are.

#include <cstdint>
#include <string>

#include "pages/FormPage.h"
#include "ui_Dialog108.h"

class CSecurityPage : public CFormPage<Ui::Dialog108> {
public:
    static constexpr int kTemplateId = 108;

    CSecurityPage();

    void Load() override;
    void SetIcons(const ImageList* icons) override;

protected:
    void BindControls() override;
    void SaveMore() override;
    int32_t ValidateMore() override;

private:
    std::string Password() const;
    // Tells the user what is wrong with the password and puts the focus on
    // its field; answers 1.
    int32_t RefusePassword(const std::string& text);
};
