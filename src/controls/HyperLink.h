#pragma once

// A static text that behaves as a link: it is underlined, changes colour
// with its state, shows the hand cursor and a tool tip with its target, and
// opens the target with the desktop's program on a click or the space key.
// A link that reports its clicks instead (SetReportsClick) keeps the look
// and hands each click to its dialog as its control's clicked command, as a
// button does.
//
// Colours, cursor and opener are one for the whole process.

#include <QColor>
#include <QCursor>
#include <QLabel>
#include <cstdint>
#include <functional>
#include <string>

#include "framework/NotifyingControl.h"

class CHyperLink : public QLabel, public ctl::NotifyingControl {
    Q_OBJECT

public:
    // The style word.
    static constexpr uint32_t kUnderline = 0x01;      // underline the text
    static constexpr uint32_t kHoverColour = 0x02;    // change colour on hover
    static constexpr uint32_t kFitToText = 0x04;      // fit the window to the text
    static constexpr uint32_t kOpenOnPress = 0x08;    // open at the press, not the release
    static constexpr uint32_t kFocusOnPress = 0x10;   // take the focus at the press
    static constexpr uint32_t kNoHandCursor = 0x20;   // keep the arrow
    static constexpr uint32_t kIgnoreClicked = 0x40;  // no active colour while pressed
    static constexpr uint32_t kDefaultStyle = kUnderline | kFitToText | kFocusOnPress;

    struct Colors {
        QColor link;
        QColor active;
        QColor visited;
        QColor hover;  // invalid: the palette's highlight colour
    };

    // Opens a target: 0 once it is opened, else the error number (errno) of
    // the start that failed.
    using Opener = std::function<int(const std::string& target)>;

    explicit CHyperLink(QWidget* parent = nullptr);

    // The target; a link without one (and not reporting clicks) opens its
    // text. Setting it shows it in the tool tip and, when the link has no
    // text yet, as the text.
    void SetURL(const std::string& url);
    std::string GetURL() const;
    void SetWindowText(const std::string& text);
    // The font, underlined as the style says.
    void SetFont(const QFont& font);
    void SetVisited(bool visited);
    bool GetVisited() const { return m_visited; }
    // Removes and adds style bits; 0 (and no change) when the two overlap.
    // With redraw, the font, size and colour follow the new bits at once.
    int32_t ModifyStyle(uint32_t remove, uint32_t add, bool redraw);
    uint32_t GetStyle() const { return m_style; }

    // A link whose click goes to its dialog instead of opening a target.
    void SetReportsClick(bool reports);
    bool ReportsClick() const { return m_reportsClick; }

    bool IsHovering() const { return m_hover; }
    bool IsPressed() const { return m_pressed; }
    // The colour the text is drawn in now.
    QColor TextColour() const;

    // Process-wide: the four colours; the cursor (null: the platform's hand
    // cursor); the opener (null: the desktop's, platform::OpenWithDesktop),
    // which answers the previous one.
    static void SetColors(const QColor& link, const QColor& active, const QColor& visited,
                          const QColor& hover = QColor());
    static Colors GetColors();
    static void SetLinkCursor(const QCursor* cursor);
    static QCursor GetLinkCursor();
    static Opener SetOpener(Opener opener);

    void ReportTo(Report report) override { m_report = std::move(report); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The user's click: report it, or open the target.
    void Click();
    void Open();
    void ApplyFont();
    void ApplyCursor();
    void UpdateToolTip();
    // With kFitToText: the size of the text plus the frame, placed as the
    // alignment keeps the text where it was.
    void FitToText();

    bool m_visited = false;
    bool m_hover = false;
    bool m_pressed = false;
    uint32_t m_style = kDefaultStyle;
    std::string m_url;
    bool m_reportsClick = false;
    Report m_report;
};
