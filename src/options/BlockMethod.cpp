#include "options/BlockMethod.h"

#include "options/ScanBits.h"
#include "options/StoreAccess.h"

namespace {

uint32_t MethodBit(BlockMethod method) {
    switch (method) {
        case BlockMethod::ChangeExtension:
            return kMonitorChangeExtension;
        case BlockMethod::Delete:
            return kMonitorDelete;
        case BlockMethod::Block:
            return kMonitorBlock;
        case BlockMethod::DoNotBlock:
            break;
    }
    return 0;
}

}  // namespace

BlockMethod BlockMethodOf(uint32_t word) {
    if (word & kMonitorChangeExtension) return BlockMethod::ChangeExtension;
    if (word & kMonitorDelete) return BlockMethod::Delete;
    if (word & kMonitorBlock) return BlockMethod::Block;
    return BlockMethod::DoNotBlock;
}

uint32_t CollectBlockMethod(uint32_t word, BlockMethod method) {
    return ReplaceBits(word, MethodBit(method), kMonitorMethods);
}
