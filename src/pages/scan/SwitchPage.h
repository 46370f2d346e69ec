#pragma once

// The base of the function selection pages: each check box of such a page
// turns one whole function of the product on or off. A box shows whether
// its function is registered (or, while its bit is pending, what this
// session chose); Save writes the boxes into the page's switch word of
// CES_Switch and marks their bits pending; Apply, after the commit,
// registers or unregisters the functions by the word.

#include <cstdint>
#include <vector>

#include "pages/BoundPage.h"

class QAbstractButton;

class CSwitchPage : public CBoundPage {
public:
    void Load() override;
    void Apply() override;
    int32_t OnDefault() override;

protected:
    // One check box of the page.
    struct Row {
        QAbstractButton* box;
        int32_t code;       // the function it switches (SSCT_*)
        int32_t* clicked;   // the page's flag of a user click on the box;
                            // null for a box whose function every Apply switches
        uint32_t onPrompt;  // string id of the question asked when a click
                            // turns the box on; 0 for none
    };

    // wordKey: the switch word of CES_Switch that holds the rows' bits.
    CSwitchPage(int templateId, uint32_t wordKey);

    // The page's rows, in the order Apply switches their functions.
    virtual std::vector<Row> Rows() = 0;
    // Disables box when function code cannot run on this machine.
    void DisableUnlessRegistrable(QAbstractButton* box, int32_t code);

    // Whether Apply switches the row's function: by default when the box
    // has no clicked flag or the user clicked it.
    virtual bool AppliesRow(const Row& row) const;
    // A click on the row's box, after its turn-on question, before the
    // flags are set.
    virtual void OnRowClicked(const Row& /*row*/) {}
    // What Save writes besides the switch word, before the bits are marked
    // pending.
    virtual void SaveRelated() {}
    // What OnDefault does after the boxes show the default word.
    virtual void AfterDefault(uint32_t /*word*/) {}

    void BindControls() override;
    void SaveMore() override;
    void OnControlCommand(int id, ctl::Notification code) override;

private:
    const Row* FindRow(int id) const;
    // The yes-no question of a box's turn-on prompt; true for Yes.
    bool AskYesNo(uint32_t textId);
    // Every bit of the page's rows.
    uint32_t RowBits() const;
    StoreAddress Word() const;

    uint32_t m_wordKey;
    std::vector<Row> m_rows;
};
