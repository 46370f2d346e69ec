#pragma once

// The family of pages that show a scan profile: the "Scan Setting" and
// "Repair Setting" blocks, the same on every member, and for most members a
// check box that switches the page's function. A member says what sets it
// apart in its ScanPageTraits (its section, the meanings its combos offer,
// its advanced dialog) and hands over its block's controls; the base binds
// them, fills the combos, keeps the function box's range enabled by it,
// marks the function pending at Save and registers it at Apply.

#include <QCheckBox>
#include <cstdint>
#include <string>
#include <vector>

#include "options/RepairPolicy.h"
#include "pages/BoundPage.h"
#include "pages/FormPage.h"

class QComboBox;

// The controls of the two blocks; a page leaves null what it lacks.
struct ScanBlock {
    QAbstractButton* closeView = nullptr;        // 1061, key 10 bit 0
    QAbstractButton* autoRepair = nullptr;       // 1062, key 10 bit 20
    QCheckBox* compressed = nullptr;             // 1064, key 10 bit 4; three-state
    QAbstractButton* executableFiles = nullptr;  // 1065, radio 0
    QAbstractButton* allFiles = nullptr;         // 1058, radio 1
    QAbstractButton* advanced = nullptr;         // 1066 "Advanced..."
    QAbstractButton* backup = nullptr;           // 1038
    QComboBox* repairable = nullptr;             // 1067
    QComboBox* unrepairable = nullptr;           // 1068
    QComboBox* compressedFiles = nullptr;        // 1069
    QAbstractButton* recompress = nullptr;       // 1070
    QComboBox* executing = nullptr;              // 1071
};

// A function the page switches: its check box, its code and the switch word
// of CES_Switch that holds its bit.
struct PageFunction {
    QAbstractButton* box;
    int32_t code;
    uint32_t switchKey;
};

// What sets a member of the family apart.
struct ScanPageTraits {
    uint32_t section = 0;
    // The advanced dialog's variant; kNoAdvanced for a page without one.
    int32_t advancedVariant = kNoAdvanced;
    // The advanced dialog hides "Incremental Scan".
    int32_t noIncremental = 0;
    // The meanings of the combos' items, in item order.
    std::vector<RepairableAction> repairable = {RepairableAction::LeaveAsIs,
                                                RepairableAction::Repair, RepairableAction::Delete};
    std::vector<bool> deletesUnrepairable = {false, true};
    std::vector<bool> deletesCompressed = {false, true};
    std::vector<ExecutingAction> executing = {
        ExecutingAction::VerifyFirst, ExecutingAction::LeaveAsIs,
        ExecutingAction::ForcedTermination, ExecutingAction::Restart};
    // Bits of key 10 that every save sets: bit 13 on most pages.
    uint32_t forcedOptions = 0x2000;
    // The function box that enables the controls after it up to enableLast;
    // 0 for none. Its function is the one that may be unable to run.
    int enableFirst = 0;
    int enableLast = 0;
    // The picture of the third group's icon (1057), if the page has one.
    int thirdPicture = 0;

    static constexpr int32_t kNoAdvanced = -1;
};

// The three items of the executing files combo on the monitors: no
// verification before processing.
std::vector<ExecutingAction> MonitorExecutingItems();

class CScanProfilePage : public CBoundPage {
public:
    void Load() override;
    void Apply() override;
    void SetIcons(const ImageList* icons) override;

protected:
    CScanProfilePage(int templateId, ScanPageTraits traits);

    // The block's controls, from the page's form.
    virtual ScanBlock Block() = 0;
    // The page's functions, in the order Apply switches them.
    virtual std::vector<PageFunction> Functions() { return {}; }
    // What the page binds besides the blocks and the functions.
    virtual void BindMore() {}
    // What Save writes besides the bound values, before the functions are
    // marked pending.
    virtual void SaveRelated() {}
    // A user's command on a control that the family does not handle.
    virtual void OnPageCommand(int /*id*/, ctl::Notification /*code*/) {}

    void BindControls() override;
    void PrepareControls() override;
    void SaveMore() override;
    void UpdateEnables() override;
    void OnControlCommand(int id, ctl::Notification code) override;

    StoreAddress Address(uint32_t key) const { return {m_traits.section, key}; }
    const ScanPageTraits& Traits() const { return m_traits; }
    // Sets the bits of key 10 that every save sets, in the binder's home.
    void WriteForcedOptions();
    // Whether the range's function box is checked; true without one.
    bool FunctionOn() const;
    // Whether load, save and apply work: not on a covered page, unless it
    // saves when covered.
    bool Works() const { return m_covered == 0 || SavesWhenCovered(); }

    // The values of the profile that only the advanced dialog shows, kept
    // between Load and Save.
    struct HeldProfile {
        uint32_t options = 0;
        uint32_t extra = 0;
        uint32_t depth = 0;
        uint32_t kinds = 0;
        std::string extensions;
        uint32_t harmful = 0;
    };
    HeldProfile& Held() { return m_held; }

private:
    void HoldAdvancedShare();
    void BindBlock(const ScanBlock& block);
    // "Advanced...": the dialog opens with the page's choices, and its OK
    // brings the values back into the page.
    void EditAdvanced();
    void FillCombos(const ScanBlock& block);
    void DisableUnregistrable();

    ScanPageTraits m_traits;
    HeldProfile m_held;
    std::vector<PageFunction> m_functions;
};

// A member made from a form whose controls carry the family's names
// (closeViewBox, autoRepairBox, compressedBox, executableRadio,
// allFilesRadio, advancedButton, backupBox, repairableCombo,
// unrepairableCombo, compressedCombo, recompressBox, executingCombo): the
// block is what the form has of them.
template <typename Form>
class CScanFormPage : public CFormPage<Form, CScanProfilePage> {
protected:
    using CFormPage<Form, CScanProfilePage>::CFormPage;

    ScanBlock Block() override {
        Form& ui = this->m_ui;
        ScanBlock block;
        if constexpr (requires { ui.closeViewBox; }) block.closeView = ui.closeViewBox;
        if constexpr (requires { ui.autoRepairBox; }) block.autoRepair = ui.autoRepairBox;
        if constexpr (requires { ui.compressedBox; }) block.compressed = ui.compressedBox;
        if constexpr (requires { ui.executableRadio; }) {
            block.executableFiles = ui.executableRadio;
            block.allFiles = ui.allFilesRadio;
        }
        if constexpr (requires { ui.advancedButton; }) block.advanced = ui.advancedButton;
        if constexpr (requires { ui.backupBox; }) block.backup = ui.backupBox;
        if constexpr (requires { ui.repairableCombo; }) block.repairable = ui.repairableCombo;
        if constexpr (requires { ui.unrepairableCombo; }) block.unrepairable = ui.unrepairableCombo;
        if constexpr (requires { ui.compressedCombo; }) block.compressedFiles = ui.compressedCombo;
        if constexpr (requires { ui.recompressBox; }) block.recompress = ui.recompressBox;
        if constexpr (requires { ui.executingCombo; }) block.executing = ui.executingCombo;
        return block;
    }
};
