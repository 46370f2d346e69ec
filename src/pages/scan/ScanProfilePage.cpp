#include "pages/scan/ScanProfilePage.h"

#include <QComboBox>
#include <utility>

#include "controls/IconStatic.h"
#include "framework/ImageList.h"
#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/RegisteredValues.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/scan/ProfileCodecs.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "text/StringTable.h"

namespace {

constexpr int kCompressedBox = 1064;
constexpr int kAdvancedButton = 1066;
constexpr int kScanIcon = 1052;
constexpr int kRepairIcon = 1053;
constexpr int kThirdIcon = 1057;

// The pictures of the two blocks' icons.
constexpr int kScanPicture = 0;
constexpr int kRepairPicture = 5;

// The check state of a three-state box that stands for nothing.
constexpr int kMiddleState = 2;

uint32_t TextOf(RepairableAction action) {
    switch (action) {
        case RepairableAction::Repair: return 402;
        case RepairableAction::Delete: return 404;
        case RepairableAction::LeaveAsIs: break;
    }
    return 400;
}

uint32_t TextOfDelete(bool remove) { return remove ? 404 : 400; }

uint32_t TextOf(ExecutingAction action) {
    switch (action) {
        case ExecutingAction::VerifyFirst: return 405;
        case ExecutingAction::ForcedTermination: return 406;
        case ExecutingAction::Restart: return 407;
        case ExecutingAction::LeaveAsIs: break;
    }
    return 400;
}

template <typename Meaning, typename Text>
void Fill(QComboBox* combo, const std::vector<Meaning>& items, Text text) {
    if (combo == nullptr) return;
    combo->clear();
    for (const Meaning item : items) combo->addItem(QString::fromStdString(LoadString(text(item))));
}

}  // namespace

std::vector<ExecutingAction> MonitorExecutingItems() {
    return {ExecutingAction::LeaveAsIs, ExecutingAction::ForcedTermination,
            ExecutingAction::Restart};
}

CScanProfilePage::CScanProfilePage(int templateId, ScanPageTraits traits)
    : CBoundPage(templateId, Applies::kNo), m_traits(std::move(traits)) {}

void CScanProfilePage::BindControls() {
    m_functions = Functions();
    for (const PageFunction& function : m_functions) {
        m_bind.Bit(function.box, {CES_Switch, function.switchKey}, SwitchBitOf(function.code),
                   BitSense::kCheckedWhenSet, BitShow::kWhenAvailable);
    }
    HoldAdvancedShare();
    BindBlock(Block());
    if (m_traits.forcedOptions != 0) m_bind.Owns(Address(CEK_ScanOptions), m_traits.forcedOptions);
    BindMore();
}

void CScanProfilePage::HoldAdvancedShare() {
    if (m_traits.advancedVariant == ScanPageTraits::kNoAdvanced) return;
    const AdvancedScanShare share = AdvancedScanShareOf(m_traits.advancedVariant);
    if (share.options != 0) m_bind.Hold(Address(CEK_ScanOptions), share.options, &m_held.options);
    if (share.extra != 0) m_bind.Hold(Address(CEK_ScanExtra), share.extra, &m_held.extra);
    if (share.archive) {
        m_bind.Hold(Address(CEK_ScanArchive), kWholeWord, &m_held.depth);
        m_bind.Hold(Address(CEK_ScanArchiveKinds), kWholeWord, &m_held.kinds);
    }
    if (share.extensions) m_bind.HoldText(Address(CEK_ScanExtensions), &m_held.extensions);
    if (share.harmful != 0)
        m_bind.Hold({CES_Macro, CEK_MacroOptions}, share.harmful, &m_held.harmful);
}

void CScanProfilePage::BindBlock(const ScanBlock& block) {
    const StoreAddress options = Address(CEK_ScanOptions);
    const StoreAddress policy = Address(CEK_ScanPolicy);
    if (block.closeView) m_bind.Bit(block.closeView, options, kScanCloseView);
    if (block.autoRepair) m_bind.Bit(block.autoRepair, options, kScanAutoRepair);
    if (block.compressed) m_bind.Bit(block.compressed, options, kScanCompressed);
    if (block.executableFiles)
        m_bind.Radios({block.executableFiles, block.allFiles}, options, FileTypeRadioCodec());
    if (block.backup) m_bind.Check(block.backup, policy, BackupCodec());
    if (block.repairable)
        m_bind.Combo(block.repairable, policy, RepairableCodec(m_traits.repairable));
    if (block.unrepairable)
        m_bind.Combo(block.unrepairable, policy, UnrepairableCodec(m_traits.deletesUnrepairable));
    if (block.compressedFiles)
        m_bind.Combo(block.compressedFiles, policy, CompressedCodec(m_traits.deletesCompressed));
    if (block.recompress) m_bind.Bit(block.recompress, policy, kPolicyRecompress);
    if (block.executing) m_bind.Combo(block.executing, policy, ExecutingCodec(m_traits.executing));
}

void CScanProfilePage::PrepareControls() {
    FillCombos(Block());
    DisableUnregistrable();
}

void CScanProfilePage::FillCombos(const ScanBlock& block) {
    Fill(block.repairable, m_traits.repairable, [](RepairableAction a) { return TextOf(a); });
    Fill(block.unrepairable, m_traits.deletesUnrepairable, TextOfDelete);
    Fill(block.compressedFiles, m_traits.deletesCompressed, TextOfDelete);
    Fill(block.executing, m_traits.executing, [](ExecutingAction a) { return TextOf(a); });
}

void CScanProfilePage::DisableUnregistrable() {
    for (const PageFunction& function : m_functions) {
        if (ctl::IdOf(function.box) != m_traits.enableFirst) continue;
        if (Context().Siblings().ServiceControl(SC_CanBeRegister, function.code, kServiceOption) ==
            0)
            function.box->setEnabled(false);
    }
}

void CScanProfilePage::SetIcons(const ImageList* icons) {
    const std::pair<int, int> pictures[] = {{kScanIcon, kScanPicture},
                                            {kRepairIcon, kRepairPicture},
                                            {kThirdIcon, m_traits.thirdPicture}};
    for (const auto& [id, picture] : pictures) {
        if (auto* icon = qobject_cast<CIconStatic*>(Control(id))) icon->SetImage(icons, picture);
    }
}

void CScanProfilePage::Load() {
    if (!Works()) {
        m_modified = 0;
        return;
    }
    std::vector<RegisteredValues::Function> functions;
    for (const PageFunction& function : m_functions)
        functions.push_back({{CES_Switch, function.switchKey}, function.code});
    LoadFrom(RegisteredValues(Context().Siblings(), functions));
}

void CScanProfilePage::SaveMore() {
    WriteForcedOptions();
    SaveRelated();
    uint32_t pending = 0;
    for (const PageFunction& function : m_functions) pending |= SwitchBitOf(function.code);
    if (pending != 0) Context().Siblings().MarkPending(pending, 0);
}

void CScanProfilePage::WriteForcedOptions() {
    if (m_traits.forcedOptions == 0) return;
    const StoreAddress options = Address(CEK_ScanOptions);
    m_bind.Home().Write(options, m_bind.Home().Word(options) | m_traits.forcedOptions);
}

void CScanProfilePage::Apply() {
    if (!Works()) return;
    for (const PageFunction& function : m_functions) {
        RegisterAsSwitched(Context().Siblings(), function.code,
                           StoreValues().Word({CES_Switch, function.switchKey}));
    }
}

bool CScanProfilePage::FunctionOn() const {
    return m_traits.enableFirst == 0 || GetCheck(m_traits.enableFirst) != 0;
}

void CScanProfilePage::UpdateEnables() {
    if (m_traits.enableFirst == 0) return;
    EnableRange(m_traits.enableFirst, m_traits.enableLast, FunctionOn(), false);
}

void CScanProfilePage::EditAdvanced() {
    const StoreAddress options = Address(CEK_ScanOptions);
    const StoreAddress extra = Address(CEK_ScanExtra);
    CAdvancedScanDlg dialog(m_traits.noIncremental, this);
    // The dialog starts from the page's choices of file types and archives.
    dialog.m_dwOptions = m_bind.CollectWord(options, m_held.options);
    dialog.m_dwExtra = m_bind.CollectWord(extra, m_held.extra);
    dialog.m_nDepth = static_cast<int32_t>(m_held.depth);
    dialog.m_dwKinds = m_held.kinds;
    dialog.m_strExtensions = m_held.extensions;
    dialog.m_dwHarmful = m_held.harmful;
    dialog.m_dwFlags = m_flags;
    dialog.m_nVariant = m_traits.advancedVariant;
    if (dialog.DoModal() != 1) return;
    m_bind.ShowWord(options, dialog.m_dwOptions);
    m_bind.ShowWord(extra, dialog.m_dwExtra);
    m_held.depth = static_cast<uint32_t>(dialog.m_nDepth);
    m_held.kinds = dialog.m_dwKinds;
    m_held.extensions = dialog.m_strExtensions;
    m_held.harmful = dialog.m_dwHarmful;
    UpdateEnables();
    if (dialog.m_bChanged != 0) MarkModified();
}

void CScanProfilePage::OnControlCommand(int id, ctl::Notification code) {
    if (id == kCompressedBox && GetCheck(id) == kMiddleState) SetCheck(id, 0);
    if (id == kAdvancedButton && code == ctl::Notification::kClicked &&
        m_traits.advancedVariant != ScanPageTraits::kNoAdvanced)
        EditAdvanced();
    for (const PageFunction& function : m_functions) {
        if (id == ctl::IdOf(function.box) && code == ctl::Notification::kClicked) m_needApply = 1;
    }
    OnPageCommand(id, code);
}
