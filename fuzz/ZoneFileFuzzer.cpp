// The exclusion zone's file (OrvDMZ.zone), which people edit by hand and
// every product of an installation rewrites. Whatever the bytes, the parser
// answers without fault; a text it refuses names a line; a text it accepts is
// formatted as a text that reads back to the same zone.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "OrvDMZ/src/ZoneFile.h"
#include "support/FuzzCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string error;
    const std::optional<orvdmz::ZoneContent> zone =
        orvdmz::ZoneFile::Parse(fuzz::AsText(data, size), &error);
    if (!zone) {
        fuzz::Check(error.starts_with("line "), "a refusal names a line");
        return 0;
    }
    const std::string text = orvdmz::ZoneFile::Format(*zone);
    const std::optional<orvdmz::ZoneContent> again = orvdmz::ZoneFile::Parse(text, &error);
    fuzz::Check(again.has_value(), "the formatted text is read back");
    fuzz::Check(*again == *zone, "the formatted text reads back to the same zone");
    return 0;
}
