#include "controls/HyperLink.h"

#include <QApplication>
#include <QEnterEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <optional>

#include "platform/DesktopOpener.h"
#include "text/LinkMessages.h"
#include "text/MessageService.h"

namespace {

// Blue links, teal while pressed, purple once visited, red under the mouse.
CHyperLink::Colors g_colors = {QColor(0, 0, 255), QColor(0, 128, 128), QColor(128, 0, 128),
                               QColor(255, 0, 0)};
std::optional<QCursor> g_cursor;  // none: the platform's hand cursor
CHyperLink::Opener g_opener;      // none: the desktop's

}  // namespace

CHyperLink::CHyperLink(QWidget* parent) : QLabel(parent) {
    setFocusPolicy(Qt::TabFocus);
    ApplyFont();
    ApplyCursor();
}

void CHyperLink::SetURL(const std::string& url) {
    m_url = url;
    if (text().isEmpty()) SetWindowText(url);
    UpdateToolTip();
}

std::string CHyperLink::GetURL() const {
    if (m_url.empty() && !m_reportsClick) return text().toStdString();
    return m_url;
}

void CHyperLink::SetWindowText(const std::string& text) {
    setText(QString::fromStdString(text));
    FitToText();
    UpdateToolTip();
}

void CHyperLink::SetFont(const QFont& font) {
    setFont(font);
    ApplyFont();
    FitToText();
}

void CHyperLink::SetVisited(bool visited) {
    m_visited = visited;
    update();
}

int32_t CHyperLink::ModifyStyle(uint32_t remove, uint32_t add, bool redraw) {
    if ((remove & add) != 0) return 0;
    m_style = (m_style & ~remove) | add;
    ApplyCursor();
    if (redraw) {
        ApplyFont();
        FitToText();
        update();
    }
    return 1;
}

void CHyperLink::SetReportsClick(bool reports) {
    m_reportsClick = reports;
    UpdateToolTip();
}

QColor CHyperLink::TextColour() const {
    if (!isEnabled()) return palette().color(QPalette::Disabled, QPalette::WindowText);
    if (m_hover && (m_style & kHoverColour) != 0) {
        return g_colors.hover.isValid() ? g_colors.hover : palette().color(QPalette::Highlight);
    }
    if (m_pressed && (m_style & kIgnoreClicked) == 0) return g_colors.active;
    return m_visited ? g_colors.visited : g_colors.link;
}

void CHyperLink::SetColors(const QColor& link, const QColor& active, const QColor& visited,
                           const QColor& hover) {
    g_colors = {link, active, visited, hover};
}

CHyperLink::Colors CHyperLink::GetColors() { return g_colors; }

void CHyperLink::SetLinkCursor(const QCursor* cursor) {
    if (cursor) {
        g_cursor = *cursor;
    } else {
        g_cursor.reset();
    }
}

QCursor CHyperLink::GetLinkCursor() { return g_cursor.value_or(QCursor(Qt::PointingHandCursor)); }

CHyperLink::Opener CHyperLink::SetOpener(Opener opener) {
    Opener previous = std::move(g_opener);
    g_opener = std::move(opener);
    return previous;
}

void CHyperLink::paintEvent(QPaintEvent*) {
    // No background of its own: the text is drawn over the dialog.
    QPainter painter(this);
    drawFrame(&painter);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, TextColour());
    int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    if (wordWrap()) flags |= Qt::TextWordWrap;
    style()->drawItemText(&painter, contentsRect(), flags, colours, true, text(),
                          QPalette::WindowText);
}

// The start-up of a link made from a form, whose text came after the
// constructor: the font, the size and the tool tip follow the text.
void CHyperLink::showEvent(QShowEvent* event) {
    if (text().isEmpty() && !m_url.empty()) setText(QString::fromStdString(m_url));
    ApplyFont();
    FitToText();
    UpdateToolTip();
    QLabel::showEvent(event);
}

void CHyperLink::enterEvent(QEnterEvent* event) {
    m_hover = true;
    ApplyCursor();
    update();
    QLabel::enterEvent(event);
}

void CHyperLink::leaveEvent(QEvent* event) {
    m_hover = false;
    update();
    QLabel::leaveEvent(event);
}

void CHyperLink::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QLabel::mousePressEvent(event);
        return;
    }
    if ((m_style & kFocusOnPress) != 0) setFocus(Qt::MouseFocusReason);
    m_pressed = true;
    update();
    if ((m_style & kOpenOnPress) != 0) Click();
}

void CHyperLink::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed) {
        QLabel::mouseReleaseEvent(event);
        return;
    }
    m_pressed = false;
    update();
    if ((m_style & kOpenOnPress) == 0 && rect().contains(event->position().toPoint())) Click();
}

void CHyperLink::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        Click();
        return;
    }
    QLabel::keyPressEvent(event);
}

void CHyperLink::Click() {
    if (m_reportsClick) {
        if (m_report) m_report(ctl::Notification::kClicked);
        return;
    }
    Open();
}

void CHyperLink::Open() {
    const std::string target = GetURL();
    const int error = g_opener ? g_opener(target) : platform::OpenWithDesktop(target);
    if (error == 0) {
        SetVisited(true);
        return;
    }
    ShowApplicationMessage(this, OpenLinkFailureText(error), msg::kOk | msg::kIconWarning);
    QApplication::beep();
}

void CHyperLink::ApplyFont() {
    QFont linkFont = font();
    linkFont.setUnderline((m_style & kUnderline) != 0);
    setFont(linkFont);
}

void CHyperLink::ApplyCursor() {
    if ((m_style & kNoHandCursor) != 0) {
        unsetCursor();
    } else {
        setCursor(GetLinkCursor());
    }
}

void CHyperLink::UpdateToolTip() {
    setToolTip(m_reportsClick ? QString() : QString::fromStdString(GetURL()));
}

void CHyperLink::FitToText() {
    if ((m_style & kFitToText) == 0 || text().isEmpty()) return;
    const QSize frame = size() - contentsRect().size();
    const QSize fitted = QFontMetrics(font()).size(0, text()) + frame;
    const QRect area = geometry();
    const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), this->alignment());
    int x = area.left();
    if ((alignment & Qt::AlignHCenter) != 0) {
        x += (area.width() - fitted.width()) / 2;
    } else if ((alignment & Qt::AlignRight) != 0) {
        x += area.width() - fitted.width();
    }
    int y = area.top();
    if ((alignment & Qt::AlignVCenter) != 0) y += (area.height() - fitted.height()) / 2;
    setGeometry(QRect(QPoint(x, y), fitted));
}
