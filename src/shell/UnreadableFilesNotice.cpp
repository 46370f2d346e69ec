#include "shell/UnreadableFilesNotice.h"

#include <QTimer>
#include <QWidget>

#include "platform/ProblemReport.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

void CUnreadableFilesNotice::ShowNew(QWidget* owner) {
    std::string paths;
    for (const platform::UnreadableFile& file : platform::UnreadableFiles()) {
        if (!m_told.insert(file.path + '\n' + file.problem).second) continue;
        paths += (paths.empty() ? "" : "\n") + file.path;
    }
    if (paths.empty()) return;
    const std::string format = LoadString(strings::kUnreadableFiles);
    ShowMessage(owner, FormatResource(format.c_str(), paths.c_str()),
                LoadString(strings::kWarningCaption), msg::kOk | msg::kIconWarning);
}

void CUnreadableFilesNotice::ShowNewLater(QWidget* owner) {
    QTimer::singleShot(0, owner, [this, owner] { ShowNew(owner); });
}
