#pragma once

// What the shell tests share: an installation with Q9SSCtrl for the
// registration journal, recorded message boxes, and reading a page tree.

#include <QTreeWidget>
#include <string>

#include "RecordingPage.h"
#include "support/RecordingMessageService.h"
#include "support/SiblingTest.h"

class ShellTest : public SiblingTest {
protected:
    ShellTest();
    ~ShellTest() override;

    PageLog log;
    RecordingMessageService boxes;

private:
    uint32_t m_savedLevel;
};

// The tree written as "page:image" per row, a group's children in brackets:
// "23:1 0:4[1:0 4:0]". The image is the index of the row's picture in the
// tree pictures.
std::string TreeOutline(const QTreeWidget* tree);

// The row of page id, or null.
QTreeWidgetItem* TreeItemOf(const QTreeWidget* tree, int page);

// Whether message is the warning that lists exactly the unreadable files
// paths, in that order.
bool IsUnreadableFilesNotice(const RecordedMessage& message,
                             const std::vector<std::string>& paths);
