#include "targets/TargetDrag.h"

#include <QByteArray>
#include <QString>
#include <cstring>

namespace {

constexpr std::size_t kWordSize = 4;
// The NUL and the three words behind the text.
constexpr std::size_t kTrailerSize = 1 + 3 * kWordSize;

void AppendWord(std::string* block, uint32_t word) {
    for (std::size_t i = 0; i < kWordSize; ++i) {
        block->push_back(static_cast<char>((word >> (8 * i)) & 0xFF));
    }
}

uint32_t WordAt(const std::string& block, std::size_t offset) {
    uint32_t word = 0;
    for (std::size_t i = 0; i < kWordSize; ++i) {
        word |= static_cast<uint32_t>(static_cast<unsigned char>(block[offset + i])) << (8 * i);
    }
    return word;
}

}  // namespace

std::string EncodeTargetDrag(const TargetDrag& drag) {
    std::string block(drag.text.c_str());
    block.push_back('\0');
    AppendWord(&block, drag.source);
    AppendWord(&block, drag.kind);
    AppendWord(&block, 0);
    return block;
}

std::optional<TargetDrag> DecodeTargetDrag(const std::string& block) {
    const std::size_t textLength = block.find('\0');
    if (textLength == std::string::npos || block.size() < textLength + kTrailerSize) {
        return std::nullopt;
    }
    const std::size_t words = textLength + 1;
    TargetDrag drag;
    drag.text = block.substr(0, textLength);
    drag.source = WordAt(block, words);
    drag.kind = static_cast<uint8_t>(WordAt(block, words + kWordSize));
    return drag;
}

void SetTargetDrag(QMimeData* data, const TargetDrag& drag) {
    const std::string block = EncodeTargetDrag(drag);
    data->setData(kTargetDragMimeType,
                  QByteArray(block.data(), static_cast<qsizetype>(block.size())));
    data->setText(QString::fromStdString(std::string(drag.text.c_str())));
}

std::optional<TargetDrag> GetTargetDrag(const QMimeData* data) {
    if (!data || !data->hasFormat(kTargetDragMimeType)) return std::nullopt;
    const QByteArray block = data->data(kTargetDragMimeType);
    return DecodeTargetDrag(std::string(block.constData(), static_cast<std::size_t>(block.size())));
}
