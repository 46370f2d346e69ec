#include "pages/SettingsPage.h"

#include <QKeyEvent>
#include <QLabel>

#include "framework/Dialog.h"
#include "framework/DialogTemplates.h"

namespace {

// The notice's top edge, below the page's top.
constexpr int kNoticeTop = 10;

}  // namespace

CSettingsPage::CSettingsPage(int templateId) : m_templateId(templateId) {}

CSettingsPage::~CSettingsPage() = default;

bool CSettingsPage::Create(QWidget* parent) {
    setParent(parent);
    if (!BuildControls()) return false;
    ctl::ConnectControls(this, [this](int id, ctl::Notification code) {
        if (id >= 10 && id <= 65535) OnControlCommand(id, code);
    });
    OnInitDialog();
    return true;
}

bool CSettingsPage::BuildControls() { return BuildDialogTemplate(m_templateId, this); }

void CSettingsPage::Save() {
    if (m_covered == 0 || SavesWhenCovered()) OnSave();
}

void CSettingsPage::SetIcons(const ImageList*) {}

template <typename Change>
void CSettingsPage::WalkRange(int firstId, int lastId, bool includeFirst, int count,
                              Change change) {
    const std::vector<QWidget*> children = ctl::Children(this);
    size_t start = 0;
    if (firstId != 0) {
        while (start < children.size() && ctl::IdOf(children[start]) != firstId) ++start;
    }
    if (start >= children.size()) return;
    int changed = 0;
    if (includeFirst) {
        change(children[start]);
        if (++changed == count) return;
    }
    for (size_t i = start + 1; i < children.size(); ++i) {
        change(children[i]);
        if (ctl::IdOf(children[i]) == lastId || ++changed == count) return;
    }
}

void CSettingsPage::EnableRange(int firstId, int lastId, bool enable, bool includeFirst) {
    WalkRange(firstId, lastId, includeFirst, -1, [enable](QWidget* w) { w->setEnabled(enable); });
}

void CSettingsPage::ShowRange(int firstId, int lastId, bool show, bool includeFirst) {
    WalkRange(firstId, lastId, includeFirst, -1, [show](QWidget* w) { w->setVisible(show); });
}

void CSettingsPage::ShowCount(int firstId, int count, bool show, bool includeFirst) {
    if (count <= 0) return;
    WalkRange(firstId, -1, includeFirst, count, [show](QWidget* w) { w->setVisible(show); });
}

void CSettingsPage::ShowAll(bool show) { ShowRange(0, -1, show, true); }

void CSettingsPage::MoveRange(int firstId, int lastId, int dx, int dy) {
    WalkRange(firstId, lastId, true, -1,
              [dx, dy](QWidget* w) { w->move(w->pos() + QPoint(dx, dy)); });
}

void CSettingsPage::CoverWithNotice(const std::string& text) {
    m_covered = 1;
    ShowAll(false);
    m_coverNotice = new QLabel(QString::fromStdString(text), this);
    ctl::SetId(m_coverNotice, kCoverNoticeId);
    m_coverNotice->setWordWrap(true);
    m_coverNotice->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_coverNotice->setGeometry(0, kNoticeTop, width(), height() - kNoticeTop);
    m_coverNotice->show();
}

int32_t CSettingsPage::IsEnabledAndVisible(int id) const {
    return ctl::IsShown(this, id) && ctl::IsEnabled(this, id) ? 1 : 0;
}

void CSettingsPage::PostToShell(int id) {
    if (auto* shell = dynamic_cast<CDialog*>(parentWidget())) shell->PostCommand(id);
}

void CSettingsPage::SendToShell(int message) {
    if (auto* shell = dynamic_cast<CDialog*>(parentWidget())) shell->OnPageMessage(message);
}

void CSettingsPage::OnOK() {
    const auto* shell = dynamic_cast<const CDialog*>(parentWidget());
    const int defaultId = shell ? shell->DefaultButtonId() : 0;
    PostToShell(defaultId != 0 ? defaultId : 1);
}

void CSettingsPage::OnCancel() { PostToShell(2); }

void CSettingsPage::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: OnOK(); return;
        case Qt::Key_Escape: OnCancel(); return;
        default: QWidget::keyPressEvent(event);
    }
}
