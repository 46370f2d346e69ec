// q9shots: renders the configuration dialog of an installation to PNG files,
// one per page of its tree (or, with --dialogs, the dialogs that edit what a
// scan covers and the configuration wizard), for machines without a display
// and for the documentation.
// It runs the dialogs of the library it is linked with, on the
// installation it lies in (or Q9_INSTALL_DIR), and changes nothing: every
// dialog ends as Cancel does.
//
//   q9shots [--edition installed|normal|master|light] [--dialogs | --page ID] [--out DIR]

#include <cstdio>
#include <cstring>
#include <string>

#include "PageSnapshots.h"
#include "session/PageId.h"

namespace {

void PrintUsage(FILE* to) {
    std::fputs(
        "usage: q9shots [--edition installed|normal|master|light] [--dialogs | --page ID]\n"
        "               [--out DIR]\n"
        "Renders the configuration dialog with each page of its tree to "
        "DIR/<edition>-page<id>.png\n"
        "(DIR defaults to ./screenshots) and prints the file names. 'installed' (the default)\n"
        "uses the edition of the installation's secure profile. --dialogs renders the dialogs\n"
        "that edit what a scan covers and the configuration wizard instead, to\n"
        "DIR/dialog<template>.png (a dialog with tabs: DIR/dialog<template>-page<page>.png, one\n"
        "per tab; the wizard: DIR/dialog1002-step<n>.png, one per step). --page renders the\n"
        "page ID (0 to 40) alone, as a shell carries it, to DIR/<edition>-page<ID>.png, also a\n"
        "page that no tree shows, such as a step of the configuration wizard.\n",
        to);
}

}  // namespace

int main(int argc, char** argv) {
    SnapshotRequest request;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const bool hasValue = i + 1 < argc;
        if (argument == "--help" || argument == "-h") {
            PrintUsage(stdout);
            return 0;
        }
        if (argument == "--edition" && hasValue) {
            if (!ParseEdition(argv[++i], &request.edition)) {
                std::fprintf(stderr, "q9shots: unknown edition '%s'\n", argv[i]);
                PrintUsage(stderr);
                return 2;
            }
        } else if (argument == "--dialogs") {
            request.targetDialogs = true;
        } else if (argument == "--page" && hasValue) {
            const std::string page = argv[++i];
            if (page.empty() || page.size() > 2 ||
                page.find_first_not_of("0123456789") != std::string::npos ||
                std::stoi(page) >= kPageCount) {
                std::fprintf(stderr, "q9shots: no page '%s'\n", page.c_str());
                PrintUsage(stderr);
                return 2;
            }
            request.pageId = std::stoi(page);
        } else if (argument == "--out" && hasValue) {
            request.outputDirectory = argv[++i];
        } else {
            std::fprintf(stderr, "q9shots: unexpected argument '%s'\n", argument.c_str());
            PrintUsage(stderr);
            return 2;
        }
    }
    return RenderConfigDialog(request, argc, argv);
}
