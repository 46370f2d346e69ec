#pragma once

// What the tests of the target trees and their dialogs share: an
// installation and registry of their own, a folder of folders to browse,
// a mount table naming some of them as drives, and recorded message boxes.
//
//   <fs>/data          a local drive: folders A, b, .hidden, empty; a file
//   <fs>/share         a mounted network drive, //server/share: folder docs
//   <fs>/nas           a remembered network drive when a test remembers it
//                      (not mounted)

#include <QString>
#include <QTreeWidgetItem>
#include <string>
#include <vector>

#include "support/RecordingMessageService.h"
#include "support/SiblingTest.h"

class DriveTest : public SiblingTest {
protected:
    DriveTest();
    ~DriveTest() override;

    // <fs>/relative; <fs> itself for an empty relative path.
    std::string Folder(const std::string& relative) const;
    // Points Q9_MOUNT_TABLE at a file holding text.
    void UseMountTable(const std::string& text) const;
    // The mount table every test starts with: the root, <fs>/data and the
    // network drive <fs>/share.
    std::string StandardMounts() const;
    // A remembered connection of mountPoint to remotePath
    // (HKEY_CURRENT_USER\NetWork\Persistent\<mount point>).
    static void Remember(const std::string& mountPoint, const char* remotePath);

    RecordingMessageService boxes;

private:
    int32_t m_savedWinNT;
};

// The child of node whose text is text; null when there is none.
QTreeWidgetItem* ChildNamed(const QTreeWidgetItem* node, const QString& text);
// The texts of node's children, in order.
std::vector<std::string> ChildTexts(const QTreeWidgetItem* node);
