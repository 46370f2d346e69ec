// The link control: its target and text, colours by state, cursor, style
// word, fitting to its text, and opening its target through a replaced
// opener (so that no browser is started), or reporting its click to the
// dialog when it has no target of its own.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QEnterEvent>
#include <QTest>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "controls/HyperLink.h"
#include "framework/DialogControls.h"
#include "support/RecordingMessageService.h"
#include "text/MessageService.h"

namespace hyper_link_test {
namespace {

const QColor kLink(0, 0, 255);
const QColor kActive(0, 128, 128);
const QColor kVisited(128, 0, 128);
const QColor kHover(255, 0, 0);

class HyperLinkTest : public testing::Test {
protected:
    HyperLinkTest() {
        m_previousOpener = CHyperLink::SetOpener([this](const std::string& target) {
            m_opened.push_back(target);
            return m_openResult;
        });
        m_window.resize(400, 300);
        m_link = new CHyperLink(&m_window);
        m_link->setGeometry(20, 20, 200, 30);
        m_window.show();
    }

    ~HyperLinkTest() override {
        CHyperLink::SetOpener(std::move(m_previousOpener));
        CHyperLink::SetColors(kLink, kActive, kVisited, kHover);
        CHyperLink::SetLinkCursor(nullptr);
    }

    void Enter() const {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QApplication::sendEvent(m_link, &enter);
    }
    void Leave() const {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(m_link, &leave);
    }
    void Click() const { QTest::mouseClick(m_link, Qt::LeftButton); }

    int m_openResult = 0;
    std::vector<std::string> m_opened;
    CHyperLink::Opener m_previousOpener;
    RecordingMessageService m_messages;
    QWidget m_window;
    CHyperLink* m_link;
};

std::string ApplicationName() { return QCoreApplication::applicationName().toStdString(); }

// --- Target, text and tool tip ----------------------------------------------

TEST_F(HyperLinkTest, AnEmptyTargetAndATextTheTextIsTheTarget) {
    m_link->SetWindowText("https://example.org/");
    EXPECT_EQ(m_link->GetURL(), "https://example.org/");
    EXPECT_EQ(m_link->toolTip(), "https://example.org/");
    Click();
    EXPECT_EQ(m_opened, std::vector<std::string>{"https://example.org/"});
}

TEST_F(HyperLinkTest, ChangingTheTargetUpdatesTheToolTipAndLeavesTheTextAlone) {
    m_link->SetWindowText("Home page");
    m_link->SetURL("https://example.org/first");
    m_link->SetURL("https://example.org/second");
    EXPECT_EQ(m_link->text(), "Home page");
    EXPECT_EQ(m_link->toolTip(), "https://example.org/second");
    EXPECT_EQ(m_link->GetURL(), "https://example.org/second");
}

TEST_F(HyperLinkTest, ATargetWithoutTextBecomesTheText) {
    m_link->SetURL("https://example.org/");
    EXPECT_EQ(m_link->text(), "https://example.org/");
}

TEST_F(HyperLinkTest, ALinkMadeWithItsTextTakesTheTargetFromItWhenShown) {
    // As a form makes it: the text is set the toolkit's way.
    auto* link = new CHyperLink(&m_window);
    link->setText("https://example.org/form");
    link->show();
    EXPECT_EQ(link->toolTip(), "https://example.org/form");
    EXPECT_EQ(link->GetURL(), "https://example.org/form");
}

// --- Opening -----------------------------------------------------------------

TEST_F(HyperLinkTest, ASuccessfulOpenMarksTheLinkVisited) {
    m_link->SetWindowText("Home");
    m_link->SetURL("https://example.org/");
    Click();
    EXPECT_EQ(m_opened, std::vector<std::string>{"https://example.org/"});
    EXPECT_TRUE(m_link->GetVisited());
    EXPECT_EQ(m_link->TextColour(), kVisited);
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(HyperLinkTest, AFailedOpenLeavesTheLinkUnvisitedAndSaysWhy) {
    m_openResult = ENOENT;
    m_link->SetURL("https://example.org/");
    Click();
    EXPECT_FALSE(m_link->GetVisited());
    EXPECT_EQ(m_link->TextColour(), kLink);
    ASSERT_EQ(m_messages.messages.size(), 1u);
    const RecordedMessage& box = m_messages.messages[0];
    EXPECT_EQ(box.text, "Can't open link:\n\nThe specified file was not found.");
    EXPECT_EQ(box.caption, ApplicationName());
    EXPECT_EQ(box.type, msg::kOk | msg::kIconWarning);
    EXPECT_EQ(box.owner, m_link);
}

TEST_F(HyperLinkTest, AFailureWithoutATextOfItsOwnGivesItsNumber) {
    m_openResult = EIO;
    m_link->SetURL("https://example.org/");
    Click();
    ASSERT_EQ(m_messages.messages.size(), 1u);
    EXPECT_EQ(m_messages.messages[0].text, "Can't open link:\n\nUnknown Error (5) occurred.");
}

TEST_F(HyperLinkTest, TheSpaceKeyOpensTheLink) {
    m_link->SetURL("https://example.org/");
    QTest::keyClick(m_link, Qt::Key_Space);
    EXPECT_EQ(m_opened.size(), 1u);
    QTest::keyClick(m_link, Qt::Key_A);
    EXPECT_EQ(m_opened.size(), 1u);
}

TEST_F(HyperLinkTest, ByDefaultTheLinkOpensAtTheReleaseInsideIt) {
    m_link->SetURL("https://example.org/");
    QTest::mousePress(m_link, Qt::LeftButton);
    EXPECT_TRUE(m_opened.empty());
    EXPECT_TRUE(m_link->IsPressed());
    QTest::mouseRelease(m_link, Qt::LeftButton);
    EXPECT_EQ(m_opened.size(), 1u);
    EXPECT_FALSE(m_link->IsPressed());

    QTest::mousePress(m_link, Qt::LeftButton);
    QTest::mouseRelease(m_link, Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
    EXPECT_EQ(m_opened.size(), 1u);
}

TEST_F(HyperLinkTest, WithOpenOnPressTheLinkOpensAtThePress) {
    m_link->SetURL("https://example.org/");
    ASSERT_EQ(m_link->ModifyStyle(0, CHyperLink::kOpenOnPress, false), 1);
    QTest::mousePress(m_link, Qt::LeftButton);
    EXPECT_EQ(m_opened.size(), 1u);
    QTest::mouseRelease(m_link, Qt::LeftButton);
    EXPECT_EQ(m_opened.size(), 1u);
}

TEST_F(HyperLinkTest, TheLinkTakesTheFocusAtThePressOnlyWithItsBit) {
    auto* other = new QWidget(&m_window);
    other->setFocusPolicy(Qt::StrongFocus);
    other->show();
    other->setFocus();
    m_link->ModifyStyle(CHyperLink::kFocusOnPress, 0, false);
    QTest::mouseClick(m_link, Qt::LeftButton);
    EXPECT_EQ(m_window.focusWidget(), other);
    m_link->ModifyStyle(0, CHyperLink::kFocusOnPress, false);
    QTest::mouseClick(m_link, Qt::LeftButton);
    EXPECT_EQ(m_window.focusWidget(), m_link);
}

// --- Colours -----------------------------------------------------------------

TEST_F(HyperLinkTest, ColourFollowsTheState) {
    EXPECT_EQ(m_link->TextColour(), kLink);
    QTest::mousePress(m_link, Qt::LeftButton);
    EXPECT_EQ(m_link->TextColour(), kActive);
    m_link->ModifyStyle(0, CHyperLink::kIgnoreClicked, true);
    EXPECT_EQ(m_link->TextColour(), kLink);
    m_link->ModifyStyle(CHyperLink::kIgnoreClicked, 0, true);
    QTest::mouseRelease(m_link, Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
    m_link->SetVisited(true);
    EXPECT_EQ(m_link->TextColour(), kVisited);
}

TEST_F(HyperLinkTest, HoverColourOnlyWithItsBit) {
    Enter();
    EXPECT_TRUE(m_link->IsHovering());
    EXPECT_EQ(m_link->TextColour(), kLink);
    m_link->ModifyStyle(0, CHyperLink::kHoverColour, true);
    EXPECT_EQ(m_link->TextColour(), kHover);
    Leave();
    EXPECT_FALSE(m_link->IsHovering());
    EXPECT_EQ(m_link->TextColour(), kLink);
}

TEST_F(HyperLinkTest, AHoverColourOfNoneIsThePalettesHighlight) {
    QPalette palette = m_link->palette();
    palette.setColor(QPalette::Highlight, QColor(1, 2, 3));
    m_link->setPalette(palette);
    CHyperLink::SetColors(kLink, kActive, kVisited);
    m_link->ModifyStyle(0, CHyperLink::kHoverColour, true);
    Enter();
    EXPECT_EQ(m_link->TextColour(), QColor(1, 2, 3));
}

TEST_F(HyperLinkTest, ColoursAreOneForEveryLink) {
    auto* other = new CHyperLink(&m_window);
    CHyperLink::SetColors(QColor(10, 10, 10), QColor(20, 20, 20), QColor(30, 30, 30),
                          QColor(40, 40, 40));
    EXPECT_EQ(m_link->TextColour(), QColor(10, 10, 10));
    EXPECT_EQ(other->TextColour(), QColor(10, 10, 10));
    other->SetVisited(true);
    EXPECT_EQ(other->TextColour(), QColor(30, 30, 30));
    const CHyperLink::Colors colours = CHyperLink::GetColors();
    EXPECT_EQ(colours.active, QColor(20, 20, 20));
    EXPECT_EQ(colours.hover, QColor(40, 40, 40));
}

TEST_F(HyperLinkTest, TheTextIsDrawnInTheLinkColour) {
    m_link->SetWindowText("WWWWWWWW");
    const QImage image = m_link->grab().toImage();
    int linkPixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) linkPixels += image.pixelColor(x, y) == kLink;
    }
    EXPECT_GT(linkPixels, 10);
}

// --- Cursor, font and style ----------------------------------------------------

TEST_F(HyperLinkTest, TheLinkShowsTheHandCursorUnlessItsStyleSaysNo) {
    EXPECT_EQ(m_link->cursor().shape(), Qt::PointingHandCursor);
    m_link->ModifyStyle(0, CHyperLink::kNoHandCursor, false);
    EXPECT_FALSE(m_link->testAttribute(Qt::WA_SetCursor));
}

TEST_F(HyperLinkTest, TheProcesssCursorIsTakenUnderTheMouse) {
    const QCursor cross(Qt::CrossCursor);
    CHyperLink::SetLinkCursor(&cross);
    EXPECT_EQ(CHyperLink::GetLinkCursor().shape(), Qt::CrossCursor);
    Enter();
    EXPECT_EQ(m_link->cursor().shape(), Qt::CrossCursor);
    CHyperLink::SetLinkCursor(nullptr);
    EXPECT_EQ(CHyperLink::GetLinkCursor().shape(), Qt::PointingHandCursor);
}

TEST_F(HyperLinkTest, TheDefaultStyleUnderlinesFitsAndTakesTheFocus) {
    EXPECT_EQ(m_link->GetStyle(), 0x15u);
    EXPECT_TRUE(m_link->font().underline());
}

TEST_F(HyperLinkTest, ModifyStyleRefusesOverlappingMasks) {
    EXPECT_EQ(m_link->ModifyStyle(0x03, 0x02, true), 0);
    EXPECT_EQ(m_link->GetStyle(), 0x15u);
    EXPECT_EQ(m_link->ModifyStyle(0x01, 0x22, true), 1);
    EXPECT_EQ(m_link->GetStyle(), 0x36u);
}

TEST_F(HyperLinkTest, TheUnderlineFollowsItsBitAtARedraw) {
    m_link->ModifyStyle(CHyperLink::kUnderline, 0, false);
    EXPECT_TRUE(m_link->font().underline());
    m_link->ModifyStyle(0, 0, true);
    EXPECT_FALSE(m_link->font().underline());
    QFont bold = m_link->font();
    bold.setBold(true);
    m_link->ModifyStyle(0, CHyperLink::kUnderline, true);
    m_link->SetFont(bold);
    EXPECT_TRUE(m_link->font().underline());
    EXPECT_TRUE(m_link->font().bold());
}

// --- Fitting -------------------------------------------------------------------

class HyperLinkFitTest : public HyperLinkTest {
protected:
    // The link at (100, 50, 200, 40) with the alignment, its text set.
    QRect FittedWith(Qt::Alignment alignment, const char* text = "Fitted link") const {
        m_link->setGeometry(100, 50, 200, 40);
        m_link->setAlignment(alignment);
        m_link->SetWindowText(text);
        return m_link->geometry();
    }
    QSize TextSize(const char* text = "Fitted link") const {
        return QFontMetrics(m_link->font()).size(0, text);
    }
};

TEST_F(HyperLinkFitTest, TheWindowTakesTheSizeOfTheText) {
    EXPECT_EQ(FittedWith(Qt::AlignLeft | Qt::AlignTop).size(), TextSize());
}

TEST_F(HyperLinkFitTest, LeftAlignedKeepsItsLeftEdgeAndTopAlignedItsTop) {
    const QRect fitted = FittedWith(Qt::AlignLeft | Qt::AlignTop);
    EXPECT_EQ(fitted.topLeft(), QPoint(100, 50));
}

TEST_F(HyperLinkFitTest, CentredKeepsItsMiddle) {
    const QRect fitted = FittedWith(Qt::AlignHCenter | Qt::AlignVCenter);
    EXPECT_LE(std::abs(fitted.center().x() - QRect(100, 50, 200, 40).center().x()), 1);
    EXPECT_LE(std::abs(fitted.center().y() - QRect(100, 50, 200, 40).center().y()), 1);
}

TEST_F(HyperLinkFitTest, RightAlignedKeepsItsRightEdge) {
    const QRect fitted = FittedWith(Qt::AlignRight | Qt::AlignTop);
    EXPECT_EQ(fitted.right(), QRect(100, 50, 200, 40).right());
    EXPECT_EQ(fitted.top(), 50);
}

TEST_F(HyperLinkFitTest, TheFrameKeepsItsExtraSize) {
    m_link->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_link->setLineWidth(3);
    EXPECT_EQ(FittedWith(Qt::AlignLeft | Qt::AlignTop).size(), TextSize() + QSize(6, 6));
}

TEST_F(HyperLinkFitTest, WithoutItsBitTheWindowKeepsItsSize) {
    m_link->ModifyStyle(CHyperLink::kFitToText, 0, true);
    EXPECT_EQ(FittedWith(Qt::AlignLeft | Qt::AlignTop), QRect(100, 50, 200, 40));
}

TEST_F(HyperLinkFitTest, AddingTheBitWithARedrawFitsAtOnce) {
    m_link->ModifyStyle(CHyperLink::kFitToText, 0, true);
    FittedWith(Qt::AlignLeft | Qt::AlignTop);
    m_link->ModifyStyle(0, CHyperLink::kFitToText, true);
    EXPECT_EQ(m_link->size(), TextSize());
}

// --- A link that reports its click ---------------------------------------------

TEST_F(HyperLinkTest, ALinkThatReportsItsClickIsTheDialogsClickedCommand) {
    auto* dialog = new QWidget(&m_window);
    auto* link = new CHyperLink(dialog);
    ctl::SetId(link, 1051);
    link->SetReportsClick(true);
    link->SetWindowText("more...");
    std::vector<std::pair<int, ctl::Notification>> commands;
    ctl::ConnectControls(dialog,
                         [&](int id, ctl::Notification code) { commands.emplace_back(id, code); });
    dialog->show();

    QTest::mouseClick(link, Qt::LeftButton);
    QTest::keyClick(link, Qt::Key_Space);

    const std::vector<std::pair<int, ctl::Notification>> expected = {
        {1051, ctl::Notification::kClicked}, {1051, ctl::Notification::kClicked}};
    EXPECT_EQ(commands, expected);
    EXPECT_TRUE(m_opened.empty());
    EXPECT_EQ(link->GetURL(), "");
    EXPECT_EQ(link->toolTip(), "");
    EXPECT_FALSE(link->GetVisited());
    // It keeps the look of a link.
    EXPECT_TRUE(link->font().underline());
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(link->TextColour(), kLink);
}

TEST_F(HyperLinkTest, AReportingLinkWithoutADialogToldDoesNothing) {
    m_link->SetReportsClick(true);
    m_link->SetWindowText("more...");
    Click();
    EXPECT_TRUE(m_opened.empty());
    EXPECT_TRUE(m_messages.messages.empty());
}

}  // namespace
}  // namespace hyper_link_test
