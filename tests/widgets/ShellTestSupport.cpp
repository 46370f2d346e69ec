#include "ShellTestSupport.h"

#include <QImage>

#include "framework/ImageList.h"
#include "session/ProcessState.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

ShellTest::ShellTest() : m_savedLevel(g_nProtectLevel) { AddSibling("Q9SSCtrl"); }

ShellTest::~ShellTest() { g_nProtectLevel = m_savedLevel; }

namespace {

int ImageIndexOf(const QIcon& icon) {
    static const ImageList pictures = ImageList::TreeImages();
    const QImage shown = icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int i = 0; i < pictures.Count(); ++i) {
        if (pictures.Pixmap(i).toImage().convertToFormat(QImage::Format_ARGB32) == shown) return i;
    }
    return -1;
}

void Append(std::string& text, const QTreeWidgetItem* item) {
    if (!text.empty() && text.back() != '[') text += ' ';
    text += std::to_string(item->data(0, Qt::UserRole).toInt()) + ":" +
            std::to_string(ImageIndexOf(item->icon(0)));
    if (item->childCount() == 0) return;
    text += '[';
    for (int i = 0; i < item->childCount(); ++i) Append(text, item->child(i));
    text += ']';
}

}  // namespace

std::string TreeOutline(const QTreeWidget* tree) {
    std::string text;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) Append(text, tree->topLevelItem(i));
    return text;
}

QTreeWidgetItem* TreeItemOf(const QTreeWidget* tree, int page) {
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(tree)); *it; ++it) {
        if ((*it)->data(0, Qt::UserRole).toInt() == page) return *it;
    }
    return nullptr;
}

bool IsUnreadableFilesNotice(const RecordedMessage& message,
                             const std::vector<std::string>& paths) {
    std::string list;
    for (const std::string& path : paths) list += (list.empty() ? "" : "\n") + path;
    const std::string format = LoadString(strings::kUnreadableFiles);
    return message.text == FormatResource(format.c_str(), list.c_str()) &&
           message.caption == LoadString(strings::kWarningCaption);
}
