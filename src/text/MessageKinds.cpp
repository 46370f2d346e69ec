#include "text/MessageKinds.h"

#include "text/StringTable.h"
#include "text/TextFormat.h"

FixedMessage FixedMessageFor(int32_t kind, uint32_t value) {
    switch (kind) {
        case 0:
            return {LoadString(strings::kWarning),
                    FormatResource(LoadString(strings::kNewVirusDetected).c_str(), value)};
        case 1: return {LoadString(strings::kInformation), LoadString(strings::kInfectedByViruses)};
        case 2: return {LoadString(strings::kError), LoadString(strings::kSelfScanFailed)};
        case 3: return {LoadString(strings::kError), LoadString(strings::kUnableToExecute)};
        default: return {};
    }
}
