#include "pages/easy/EasyConfigPage.h"

#include <QSignalBlocker>

#include "controls/IconStatic.h"
#include "options/StoreKeys.h"
#include "policy/ConfigurationApply.h"
#include "session/ProcessState.h"
#include "session/ProtectionLevel.h"
#include "session/StoreCommit.h"
#include "text/StringTable.h"

namespace {

constexpr int kLevelPicture = 13;
// "Protection Level": the slider has no label of its own in the form.
constexpr uint32_t kProtectionLevelText = 1439;
constexpr int kTitleWeight = 700;
// ApplyConfiguration's third argument: register the system monitor.
constexpr int32_t kRegisterMonitor = 1;

}  // namespace

CEasyConfigPage::CEasyConfigPage() : CFormPage(kTemplateId, Applies::kYes) {}

void CEasyConfigPage::BindControls() {
    // No control stands for a store value. Applying a level writes the
    // password protection back as it was before the level's file came in.
    m_bind.Owns({CES_Authorization, CEK_AuthEnabled}, kWholeWord);
    m_bind.Owns({CES_Authorization, CEK_AuthItems}, kWholeWord);
    m_bind.OwnsText({CES_Authorization, CEK_AuthPassword});
}

void CEasyConfigPage::PrepareControls() {
    m_boldFont = m_ui.levelTitle->font();
    m_boldFont.setWeight(static_cast<QFont::Weight>(kTitleWeight));
    m_ui.levelTitle->setFont(m_boldFont);

    QPalette palette = m_ui.reportList->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Button));
    m_ui.reportList->setPalette(palette);

    QSlider* slider = m_ui.levelSlider;
    slider->setAccessibleName(QString::fromStdString(LoadString(kProtectionLevelText)));
    connect(slider, &QSlider::valueChanged, this,
            [this, slider] { OnSliderNotice(!slider->isSliderDown()); });
    connect(slider, &QSlider::sliderReleased, this, [this] { OnSliderNotice(true); });
}

void CEasyConfigPage::SetIcons(const ImageList* icons) {
    m_ui.levelIcon->SetImage(icons, kLevelPicture);
}

void CEasyConfigPage::Load() {
    ShowLevel();
    m_modified = 0;
}

int32_t CEasyConfigPage::OnDefault() {
    g_nProtectLevel = kProtectLevelMedium;
    ApplyLevel(kProtectLevelMedium);
    ShowLevel();
    MarkModified();
    return 1;
}

void CEasyConfigPage::Apply() { ApplyConfiguration(nullptr, nullptr, kRegisterMonitor); }

void CEasyConfigPage::ShowLevel() {
    m_lastLevel = g_nProtectLevel;
    // A value that is no level leaves the slider where it was.
    const int position = PositionOfLevel(g_nProtectLevel);
    if (position >= 0) {
        const QSignalBlocker quiet(m_ui.levelSlider);
        m_ui.levelSlider->setValue(position);
    }
    Refresh();
}

void CEasyConfigPage::Refresh() {
    m_ui.levelTitle->setText(QString::fromStdString(LevelTitle(g_nProtectLevel)));
    m_ui.levelDescription->setText(
        QString::fromStdString(LevelDescription(g_nProtectLevel, g_bInWizard != 0)));
}

void CEasyConfigPage::OnSliderNotice(bool endOfScroll) {
    const uint32_t level = LevelAtPosition(m_ui.levelSlider->value());
    if (level != g_nProtectLevel) {
        g_nProtectLevel = level;
        SendToShell(kLevelChangedMessage);
        // Going to Customized brings back the level where the last drag
        // ended: the user's own configuration starts from it.
        ApplyLevel(level != kProtectLevelCustomized ? level : m_lastLevel);
        Refresh();
        MarkModified();
    }
    if (endOfScroll) m_lastLevel = level;
}
