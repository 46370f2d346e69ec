#pragma once

// A message service for tests: records every box and answers from a queue
// (the box's default answer when the queue is empty). Installed for the life
// of the object.

#include <deque>
#include <string>
#include <vector>

#include "text/MessageService.h"

struct RecordedMessage {
    QWidget* owner;
    std::string text;
    std::string caption;
    uint32_t type;
};

class RecordingMessageService final : public MessageService {
public:
    RecordingMessageService() : m_previous(MessageService::Install(this)) {}
    ~RecordingMessageService() override { MessageService::Install(m_previous); }
    RecordingMessageService(const RecordingMessageService&) = delete;
    RecordingMessageService& operator=(const RecordingMessageService&) = delete;

    int32_t Show(QWidget* owner, const std::string& text, const std::string& caption,
                 uint32_t type) override {
        messages.push_back({owner, text, caption, type});
        if (answers.empty()) return msg::DefaultAnswer(type);
        const int32_t answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<RecordedMessage> messages;
    std::deque<int32_t> answers;

private:
    MessageService* m_previous;
};
