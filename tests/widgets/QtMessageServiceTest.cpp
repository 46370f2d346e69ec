#include "framework/QtMessageService.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

namespace {

// Runs check on the box once it is shown, then presses the given button.
void WhenShown(std::function<void(QMessageBox*)> check, QMessageBox::StandardButton press) {
    QTimer::singleShot(0, [check, press] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        check(box);
        box->button(press)->click();
    });
}

}  // namespace

TEST(QtMessageService, OkBoxShowsTextCaptionAndIcon) {
    QtMessageService service;
    WhenShown(
        [](QMessageBox* box) {
            EXPECT_EQ(box->text(), "Please enter the values between 1 ~ 9.");
            EXPECT_EQ(box->windowTitle(), "Configuration Error");
            EXPECT_EQ(box->icon(), QMessageBox::NoIcon);
            EXPECT_EQ(box->buttons().size(), 1);
        },
        QMessageBox::Ok);
    EXPECT_EQ(service.Show(nullptr, "Please enter the values between 1 ~ 9.", "Configuration Error",
                           msg::kOk),
              msg::kIdOk);
}

TEST(QtMessageService, YesNoWithSecondDefaultAnswersThePressedButton) {
    QtMessageService service;
    WhenShown(
        [](QMessageBox* box) {
            EXPECT_EQ(box->icon(), QMessageBox::Question);
            EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        },
        QMessageBox::Yes);
    EXPECT_EQ(service.Show(nullptr, "Sure?", "Warning",
                           msg::kYesNo | msg::kIconQuestion | msg::kDefaultButton2),
              msg::kIdYes);
}

TEST(QtMessageService, ExclamationOkCancelAnswersCancel) {
    QtMessageService service;
    WhenShown([](QMessageBox* box) { EXPECT_EQ(box->icon(), QMessageBox::Warning); },
              QMessageBox::Cancel);
    EXPECT_EQ(service.Show(nullptr, "t", "c", msg::kOkCancel | msg::kIconWarning), msg::kIdCancel);
}

TEST(QtMessageService, EmptyCaptionAndTextShowAnEmptyBox) {
    QtMessageService service;
    QCoreApplication::setApplicationName("Configuration");
    WhenShown(
        [](QMessageBox* box) {
            EXPECT_EQ(box->windowTitle(), "");
            EXPECT_EQ(box->text(), "");
        },
        QMessageBox::Ok);
    EXPECT_EQ(service.Show(nullptr, "", "", 7), msg::kIdOk);
}

TEST(QtMessageService, ApplicationMessagesBearTheApplicationName) {
    QtMessageService service;
    MessageService* previous = MessageService::Install(&service);
    QCoreApplication::setApplicationName("Configuration");
    WhenShown([](QMessageBox* box) { EXPECT_EQ(box->windowTitle(), "Configuration"); },
              QMessageBox::Ok);
    EXPECT_EQ(ShowApplicationMessage(nullptr, "text", msg::kOk), msg::kIdOk);
    MessageService::Install(previous);
}
