#pragma once

// "Authorization Setting": the two accounts of a scheduled scan, the one the
// scan runs as and the one for network folders. The dialog keeps nothing
// itself: the caller hands in the four texts and takes them back after OK.
// Each password is typed twice; OK closes only when every field fits in 255
// characters and each password equals its confirmation. Cancel leaves the
// texts as they were given.

#include <cstdint>
#include <string>
#include <utility>

#include "framework/FormDialog.h"
#include "ui_Dialog1024.h"

class CAuthorizationDlg : public CFormDialog<Ui::Dialog1024> {
public:
    static constexpr int kTemplateId = 1024;

    explicit CAuthorizationDlg(QWidget* parent);

    // Before DoModal.
    void SetUser(std::string user) { m_strUser = std::move(user); }
    void SetPassword(std::string password) { m_strPassword = std::move(password); }
    void SetNetUser(std::string user) { m_strNetUser = std::move(user); }
    void SetNetPassword(std::string password) { m_strNetPassword = std::move(password); }

    // After DoModal: what OK took, or what was given.
    const std::string& GetUser() const { return m_strUser; }
    const std::string& GetPassword() const { return m_strPassword; }
    const std::string& GetNetUser() const { return m_strNetUser; }
    const std::string& GetNetPassword() const { return m_strNetPassword; }

    // 1 when the user typed in any of the six fields, else 0.
    int32_t IsChanged() const { return m_changed; }

protected:
    bool BuildControls() override;
    bool OnInitDialog() override;
    void OnOK() override;

private:
    // Each says what is wrong, puts the focus on the field and answers
    // false, or answers true.
    bool CheckLengths();
    bool CheckConfirmations();

    std::string m_strUser;
    std::string m_strPassword;
    std::string m_strNetUser;
    std::string m_strNetPassword;
    int32_t m_changed = 0;
};
