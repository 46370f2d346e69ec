#pragma once

// The message service of the running program: a modal QMessageBox with the
// buttons, icon and default button the box type asks for.

#include "text/MessageService.h"

class QtMessageService final : public MessageService {
public:
    int32_t Show(QWidget* owner, const std::string& text, const std::string& caption,
                 uint32_t type) override;
};
