// A configuration store file read through StoreFile, as the store reads its
// live, default and level files: the bytes are the file's content, replaced
// before every read. The file reader sees what the parser sees; a file it
// cannot parse reads as empty and refuses every change without being
// touched.

#include <cstddef>
#include <cstdint>
#include <string>

#include "Q9CfgE/src/StoreFile.h"
#include "Q9CfgE/src/StoreParser.h"
#include "Q9CfgE/src/StoreWriter.h"
#include "platform/AtomicFile.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes = fuzz::AsText(data, size);
    // One reader for the whole run, as the store keeps one per file: its
    // cache must notice every replacement.
    static cfge::StoreFile file(fuzz::ScratchDirectory::Write("Q9Cfg.dat", bytes));
    fuzz::ScratchDirectory::Write("Q9Cfg.dat", bytes);

    cfge::StoreData parsed;
    cfge::ParseError error;
    const bool parses = cfge::StoreParser::Parse(bytes, &parsed, &error);
    const cfge::StoreFile::Snapshot snapshot = file.Read();
    fuzz::Check(snapshot.data != nullptr && !snapshot.missing && snapshot.readError == 0,
                "an existing file is read");
    fuzz::Check(snapshot.corrupt == !parses, "the file reader refuses what the parser refuses");
    fuzz::Check(cfge::StoreWriter::Write(*snapshot.data) == cfge::StoreWriter::Write(parsed),
                "the file reader sees what the parser sees");
    if (!parses) {
        fuzz::Check(!file.Modify([](cfge::StoreData&) { return true; }),
                    "a file that cannot be parsed refuses changes");
        std::string after;
        fuzz::Check(platform::ReadWholeFile(file.Path(), &after) == 0 && after == bytes,
                    "a file that cannot be parsed is left as it is");
    }
    return 0;
}
