#pragma once

// A settings page whose controls are bound to store values (CPageBinder).
// The base does for every such page what the page contract asks:
//   Load and Default show values through one routine, from the store or
//   from the factory defaults; Load clears m_modified, Default sets it;
//   Save writes the bound values bit by bit (never on a covered page);
//   Validate runs the bound range and length checks (a covered page passes);
//   a user's change to a bound control sets m_modified, and m_needApply
//   on a page that applies, and re-runs the enable rules.
// Hooks take what is not a store value: registrations, lists, dialogs.

#include <cstdint>

#include "options/StoreValues.h"
#include "pages/PageBinder.h"
#include "pages/SettingsPage.h"

class CBoundPage : public CSettingsPage {
public:
    // Whether the page has work for Apply once its values changed.
    enum class Applies { kNo, kYes };

    void Load() override;
    int32_t OnDefault() override;
    int32_t Validate() override;

    const CPageBinder& Binder() const { return m_bind; }

protected:
    CBoundPage(int templateId, Applies applies);

    // Binds the controls (after they exist, before the first Load).
    virtual void BindControls() = 0;
    // Fixed contents and what the flags hide or move; before the first Load.
    virtual void PrepareControls() {}
    // What a page shows besides its bound controls; runs after them.
    virtual void ShowMore(const StoreValues& /*values*/) {}
    // What a page saves besides its bound values; runs after them.
    virtual void SaveMore() {}
    // Checks besides the bound ones; runs after them.
    virtual int32_t ValidateMore() { return 0; }
    // Enable rules that the binder's check box rules cannot state.
    virtual void UpdateEnables() {}

    // The one routine behind Load and Default.
    void ShowValues(const StoreValues& values);
    // Load's work from a source of values: shows them and leaves the page
    // unmodified. Load itself shows the store.
    void LoadFrom(const StoreValues& values);
    // Marks the page changed by the user.
    void MarkModified();

    bool OnInitDialog() override;
    void OnSave() override;

    CPageBinder m_bind;

private:
    Applies m_applies;
};
