#include "pages/scan/ProfileCodecs.h"

#include <algorithm>
#include <utility>

#include "options/FileTypes.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"

namespace {

// A combo of meanings: read gives the meaning of a word, write the word with
// a meaning's bits in the field of mask.
template <typename Meaning>
WordCodec ChoiceCodec(std::vector<Meaning> items, uint32_t mask, Meaning (*read)(uint32_t),
                      uint32_t (*write)(uint32_t, Meaning)) {
    uint32_t offered = 0;
    for (const Meaning& item : items) offered |= write(0, item);
    auto decode = [items, offered, read](uint32_t word) {
        const auto it = std::find(items.begin(), items.end(), read(word & offered));
        return it == items.end() ? 0 : static_cast<int>(it - items.begin());
    };
    auto encode = [items, write](uint32_t word, int index) {
        return write(word, items.at(static_cast<size_t>(index)));
    };
    return {std::move(decode), std::move(encode), mask};
}

RepairableAction ReadRepairable(uint32_t policy) { return RepairCombosOf(policy).repairable; }
uint32_t WriteRepairable(uint32_t policy, RepairableAction action) {
    RepairCombos combos = RepairCombosOf(policy);
    combos.repairable = action;
    return CollectRepairCombos(policy, combos);
}

bool ReadUnrepairable(uint32_t policy) { return RepairCombosOf(policy).deleteUnrepairable; }
uint32_t WriteUnrepairable(uint32_t policy, bool remove) {
    return SetBits(policy, kPolicyDeleteUnrepairable, remove);
}

bool ReadCompressed(uint32_t policy) { return RepairCombosOf(policy).deleteCompressed; }
uint32_t WriteCompressed(uint32_t policy, bool remove) {
    return SetBits(policy, kPolicyDeleteCompressed, remove);
}

ExecutingAction ReadExecuting(uint32_t policy) { return RepairCombosOf(policy).executing; }
uint32_t WriteExecuting(uint32_t policy, ExecutingAction action) {
    RepairCombos combos = RepairCombosOf(policy);
    combos.executing = action;
    return CollectRepairCombos(policy, combos);
}

}  // namespace

WordCodec FileTypeRadioCodec() {
    return {FileTypeRadioOf,
            [](uint32_t word, int index) { return CollectFileTypes(word, index); },
            kScanAllFiles | kScanTypeKinds};
}

WordCodec BackupCodec() {
    return {[](uint32_t policy) { return BackupOf(policy) ? 1 : 0; },
            [](uint32_t policy, int index) { return CollectBackup(policy, index == 1); },
            kPolicyBackup};
}

WordCodec RepairableCodec(std::vector<RepairableAction> items) {
    return ChoiceCodec(std::move(items), kPolicyRepair | kPolicyDelete, ReadRepairable,
                       WriteRepairable);
}

WordCodec UnrepairableCodec(std::vector<bool> items) {
    return ChoiceCodec(std::move(items), kPolicyDeleteUnrepairable, ReadUnrepairable,
                       WriteUnrepairable);
}

WordCodec CompressedCodec(std::vector<bool> items) {
    return ChoiceCodec(std::move(items), kPolicyDeleteCompressed, ReadCompressed, WriteCompressed);
}

WordCodec ExecutingCodec(std::vector<ExecutingAction> items) {
    return ChoiceCodec(std::move(items), kPolicyExecuting, ReadExecuting, WriteExecuting);
}

WordCodec BlockMethodCodec(std::vector<BlockMethod> items) {
    return ChoiceCodec(std::move(items), kMonitorMethods, BlockMethodOf, CollectBlockMethod);
}
