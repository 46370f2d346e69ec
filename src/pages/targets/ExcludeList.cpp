#include "pages/targets/ExcludeList.h"

#include <QFileIconProvider>
#include <QFileInfo>

#include "text/StringTable.h"

namespace {

constexpr uint32_t kItemsTitle = 1304;
constexpr uint32_t kUseTitle = 1305;
constexpr uint32_t kUse = 1306;
constexpr uint32_t kDoNotUse = 1307;

// A path's own icon when it exists; else the generic one of its kind, and
// the generic file icon for an extension.
QIcon IconOf(const ExclusionRow& row) {
    static const QFileIconProvider provider;
    if (row.flags & kZonePath) {
        const QFileInfo info(QString::fromStdString(row.text));
        if (info.exists()) return provider.icon(info);
        if (row.flags & kZoneFolder) return provider.icon(QAbstractFileIconProvider::Folder);
    }
    return provider.icon(QAbstractFileIconProvider::File);
}

}  // namespace

CExcludeList::CExcludeList(QWidget* parent) : CHeaderListCtrl(parent) {
    SetColumns(LoadString(kItemsTitle), LoadString(kUseTitle));
}

void CExcludeList::ShowRows(const ExclusionList& list, int selected) {
    clear();
    const QString use = QString::fromStdString(LoadString(kUse));
    const QString doNotUse = QString::fromStdString(LoadString(kDoNotUse));
    for (const ExclusionRow& row : list.Rows()) {
        auto* item = new QTreeWidgetItem(this);
        item->setText(0, QString::fromStdString(row.text));
        item->setText(1, row.use ? use : doNotUse);
        item->setIcon(0, IconOf(row));
    }
    if (selected >= 0 && selected < topLevelItemCount()) {
        setCurrentItem(topLevelItem(selected));
    }
}
