#include "shell/SaveFailure.h"

#include "session/StoreCommit.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

bool CommitOrReport(QWidget* owner) {
    if (CommitWorkingCopy()) return true;
    ShowMessage(owner, LoadString(strings::kSaveFailed), LoadString(strings::kError),
                msg::kOk | msg::kIconError);
    return false;
}
