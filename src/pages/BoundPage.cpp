#include "pages/BoundPage.h"

CBoundPage::CBoundPage(int templateId, Applies applies)
    : CSettingsPage(templateId), m_applies(applies) {}

bool CBoundPage::OnInitDialog() {
    BindControls();
    m_bind.OnUserChange([this] {
        MarkModified();
        m_bind.ApplyEnableRules();
        UpdateEnables();
    });
    PrepareControls();
    Load();
    return true;
}

void CBoundPage::ShowValues(const StoreValues& values) {
    m_bind.Show(values);
    ShowMore(values);
    UpdateEnables();
}

void CBoundPage::MarkModified() {
    m_modified = 1;
    if (m_applies == Applies::kYes) m_needApply = 1;
}

void CBoundPage::LoadFrom(const StoreValues& values) {
    ShowValues(values);
    m_modified = 0;
}

void CBoundPage::Load() { LoadFrom(m_bind.Home()); }

int32_t CBoundPage::OnDefault() {
    ShowValues(DefaultValues());
    MarkModified();
    return 1;
}

void CBoundPage::OnSave() {
    m_bind.Save();
    SaveMore();
}

int32_t CBoundPage::Validate() {
    // A covered page shows nothing to correct, and saves nothing.
    if (m_covered != 0) return 0;
    if (m_bind.Validate(this) != 0) return 1;
    return ValidateMore();
}
