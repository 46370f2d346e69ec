// The text of a configuration store file (live store, factory defaults,
// protection levels, policy files). Whatever the bytes, the parser answers
// without fault; a text it refuses names a line and leaves nothing behind; a
// text it accepts is written back as a text that reads back to the same
// content.

#include <cstddef>
#include <cstdint>
#include <string>

#include "Q9CfgE/src/StoreParser.h"
#include "Q9CfgE/src/StoreWriter.h"
#include "support/FuzzCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    cfge::StoreData content;
    cfge::ParseError error;
    if (!cfge::StoreParser::Parse(fuzz::AsText(data, size), &content, &error)) {
        fuzz::Check(error.line >= 1 && !error.message.empty(), "a refusal names a line and why");
        fuzz::Check(content.AllSections().empty(), "a refused text leaves nothing behind");
        return 0;
    }
    const std::string text = cfge::StoreWriter::Write(content);
    fuzz::Check(cfge::StoreWriter::Write(content) == text, "writing again gives the same text");
    cfge::StoreData again;
    fuzz::Check(cfge::StoreParser::Parse(text, &again, &error), "the written text is read back");
    fuzz::Check(cfge::StoreWriter::Write(again) == text,
                "the written text reads back to the same content");
    return 0;
}
