#include "HostCommand.h"

#include <dlfcn.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>

#include "FlagNames.h"
#include "q9cfgul.h"

namespace {

enum Status {
    kCalled = 0,
    kDiffChanges = 1,  // policy diff: something would change
    kBadCommand = 2,
    kNotApplied = 3,  // policy apply: the policy cannot be merged, nothing was called
    kNoLibrary = 4,
    kRefused = 5,  // policy apply: the library refused (no privilege, password)
};

using DoModalFn = int32_t(uint64_t, uint32_t, int32_t*, const char*, const char*);
using MsgBoxFn = int32_t(int32_t, uint32_t);
using ReportFn = int32_t();
using PolicyDiffFn = int32_t(uint32_t, const char*, const char*, char*, uint32_t*);

// What the command line asked for.
struct Request {
    std::string command;
    std::vector<std::string> operands;
    uint32_t flags = 0;
    std::optional<int32_t> page;
    uint64_t parent = 0;
    std::string path1;
    std::string path2;
    std::string library;
    int32_t kind = 0;     // msgbox
    uint32_t value = 0;   // msgbox
    std::string policyAction;  // policy: "apply" or "diff"
    bool json = false;         // policy diff
};

class BadCommand {
public:
    explicit BadCommand(std::string text) : message(std::move(text)) {}
    std::string message;
};

std::optional<long long> ParseInteger(const std::string& text) {
    if (text.empty()) return std::nullopt;
    errno = 0;
    char* end = nullptr;
    const long long value = std::strtoll(text.c_str(), &end, 0);
    if (errno != 0 || *end != '\0') return std::nullopt;
    return value;
}

int32_t ParseInt32(const std::string& option, const std::string& text) {
    const auto value = ParseInteger(text);
    if (!value || *value < INT32_MIN || *value > INT32_MAX) {
        throw BadCommand(option + " takes a 32-bit number, not \"" + text + "\"");
    }
    return static_cast<int32_t>(*value);
}

const std::string& OptionValue(const std::vector<std::string>& words, std::size_t* i) {
    if (*i + 1 >= words.size()) throw BadCommand(words[*i] + " needs a value");
    return words[++*i];
}

void ApplyOption(Request& request, const std::vector<std::string>& words, std::size_t* i) {
    const std::string& option = words[*i];
    if (option == "--flags") {
        const std::string& text = OptionValue(words, i);
        const std::optional<uint32_t> flags = ParseFlags(text);
        if (!flags) throw BadCommand("unknown flags \"" + text + "\"; names: " + FlagNameList());
        request.flags |= *flags;
    } else if (option == "--page") {
        request.page = ParseInt32(option, OptionValue(words, i));
    } else if (option == "--parent") {
        const auto value = ParseInteger(OptionValue(words, i));
        if (!value || *value < 0) throw BadCommand("--parent takes a window id");
        request.parent = static_cast<uint64_t>(*value);
    } else if (option == "--path1" || option == "--base") {
        request.path1 = OptionValue(words, i);
    } else if (option == "--path2") {
        request.path2 = OptionValue(words, i);
    } else if (option == "--library") {
        request.library = OptionValue(words, i);
    } else if (option == "--json") {
        request.json = true;
    } else {
        throw BadCommand("unknown option " + option);
    }
}

Request ParseRequest(const std::vector<std::string>& words) {
    Request request;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i].starts_with("--")) {
            ApplyOption(request, words, &i);
        } else if (request.command.empty()) {
            request.command = words[i];
        } else {
            request.operands.push_back(words[i]);
        }
    }
    return request;
}

void ExpectOperands(const Request& request, std::size_t low, std::size_t high,
                    const char* shape) {
    if (request.operands.size() < low || request.operands.size() > high) {
        throw BadCommand(request.command + " takes " + shape);
    }
}

// policy [apply|diff] FILE: a silent mode 0 call, or its dry run.
void PreparePolicy(Request& request) {
    std::vector<std::string>& operands = request.operands;
    request.policyAction = "apply";
    if (!operands.empty() && (operands[0] == "apply" || operands[0] == "diff")) {
        request.policyAction = operands[0];
        operands.erase(operands.begin());
    }
    ExpectOperands(request, 1, 1,
                   "[apply|diff] POLICY-FILE (and --base FILE, --flags keep-monitor, --json)");
    if (request.json && request.policyAction != "diff") {
        throw BadCommand("--json goes with policy diff");
    }
    request.path2 = operands[0];
    request.flags = (request.flags & ~DMF_ModeMask) | DMF_ModeDialog | DMF_Silent;
}

// The mode and operands of each DoModal command, folded into the request.
void PrepareDoModal(Request& request) {
    if (request.command == "dialog") {
        ExpectOperands(request, 0, 0, "no operands (use --page N)");
        request.flags = (request.flags & ~DMF_ModeMask) | DMF_ModeDialog;
    } else if (request.command == "wizard") {
        ExpectOperands(request, 0, 0, "no operands");
        request.flags = (request.flags & ~DMF_ModeMask) | DMF_ModeWizard;
    } else if (request.command == "page") {
        ExpectOperands(request, 1, 1, "PAGE");
        request.page = ParseInt32("page", request.operands[0]);
        request.flags = (request.flags & ~DMF_ModeMask) | DMF_ModeSinglePage;
    } else if (request.command == "policy") {
        PreparePolicy(request);
    } else {
        ExpectOperands(request, 0, 0, "no operands (the mode is the low byte of --flags)");
    }
}

class Library {
public:
    explicit Library(const std::string& path) : m_handle(dlopen(path.c_str(), RTLD_NOW)) {}
    ~Library() {
        if (m_handle) dlclose(m_handle);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    bool loaded() const { return m_handle != nullptr; }
    template <typename Fn>
    Fn* Entry(const char* name) const {
        return reinterpret_cast<Fn*>(dlsym(m_handle, name));
    }

private:
    void* m_handle;
};

const char* NullIfEmpty(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

int CallDoModal(const Library& library, Request& request, std::ostream& out) {
    auto* doModal = library.Entry<DoModalFn>("Q9CfgUL_DoModal");
    if (!doModal) return -1;
    int32_t page = request.page.value_or(0);
    const int32_t result = doModal(request.parent, request.flags,
                                   request.page ? &page : nullptr, NullIfEmpty(request.path1),
                                   NullIfEmpty(request.path2));
    out << "result: " << result << "\n";
    if (request.page && (request.flags & DMF_ModeMask) == DMF_ModeDialog) {
        out << "page: " << page << "\n";
    }
    return kCalled;
}

// The dry run's report and answer; nullopt without the entry point.
struct DiffReport {
    int32_t result = 0;
    std::string text;
};

std::optional<DiffReport> RunPolicyDiff(const Library& library, const Request& request,
                                        uint32_t diffFlags) {
    auto* diff = library.Entry<PolicyDiffFn>("Q9CfgUL_PolicyDiff");
    if (!diff) return std::nullopt;
    uint32_t size = 0;
    diff(diffFlags, NullIfEmpty(request.path1), request.path2.c_str(), nullptr, &size);
    std::string text(size, '\0');
    DiffReport report;
    report.result =
        diff(diffFlags, NullIfEmpty(request.path1), request.path2.c_str(), text.data(), &size);
    text.resize(std::min<std::size_t>(std::strlen(text.c_str()), text.size()));
    report.text = std::move(text);
    return report;
}

int CallPolicyDiff(const Library& library, const Request& request, std::ostream& out) {
    const std::optional<DiffReport> report =
        RunPolicyDiff(library, request, request.json ? PDF_Json : 0u);
    if (!report || report->result < 0) return -1;
    out << report->text;
    return report->result == 0 ? kCalled : kDiffChanges;
}

// Applies a policy the way an installer would: a policy that cannot be
// merged is refused before anything is called, with the dry run's reason.
int CallPolicyApply(const Library& library, Request& request, std::ostream& out,
                    std::ostream& err) {
    const std::optional<DiffReport> report = RunPolicyDiff(library, request, 0);
    if (!report || report->result < 0) return -1;
    const std::string first = report->text.substr(0, report->text.find('\n'));
    if (first.starts_with("Not merged")) {
        err << "q9cfg: the policy was not applied. " << first << "\n";
        return kNotApplied;
    }
    auto* doModal = library.Entry<DoModalFn>("Q9CfgUL_DoModal");
    if (!doModal) return -1;
    const int32_t result =
        doModal(request.parent, request.flags, nullptr, NullIfEmpty(request.path1),
                request.path2.c_str());
    out << "result: " << result << "\n";
    return result == 1 ? kCalled : kRefused;
}

void PrepareMsgBox(Request& request) {
    ExpectOperands(request, 1, 2, "KIND [VALUE]");
    request.kind = ParseInt32("KIND", request.operands[0]);
    if (request.operands.size() > 1) {
        request.value = static_cast<uint32_t>(ParseInt32("VALUE", request.operands[1]));
    }
}

int CallMsgBox(const Library& library, const Request& request, std::ostream& out) {
    auto* msgBox = library.Entry<MsgBoxFn>("Q9CfgUL_MsgBox");
    if (!msgBox) return -1;
    out << "result: " << msgBox(request.kind, request.value) << "\n";
    return kCalled;
}

int CallReport(const Library& library, std::ostream& out) {
    auto* report = library.Entry<ReportFn>("Q9CfgUL_Report");
    if (!report) return -1;
    out << "result: " << report() << "\n";
    return kCalled;
}

bool IsDoModalCommand(const std::string& command) {
    return command == "dialog" || command == "wizard" || command == "page" ||
           command == "policy" || command == "domodal";
}

int CallDoModalCommand(const Library& library, Request& request, std::ostream& out,
                       std::ostream& err) {
    if (request.command != "policy") return CallDoModal(library, request, out);
    return request.policyAction == "diff" ? CallPolicyDiff(library, request, out)
                                          : CallPolicyApply(library, request, out, err);
}

}  // namespace

std::string HostUsage() {
    return "usage: q9cfg COMMAND [OPTIONS]\n"
           "\n"
           "Loads libQ9CfgUL.so (beside q9cfg, or --library PATH) as the product's programs\n"
           "do, calls one export and prints its result.\n"
           "\n"
           "  q9cfg dialog [--page N]        the configuration dialog (mode 0)\n"
           "  q9cfg wizard                   the configuration wizard (mode 1)\n"
           "  q9cfg page N                   one settings page (mode 2)\n"
           "  q9cfg policy apply FILE [--base F] [--flags keep-monitor]\n"
           "                                 apply a policy file silently, as an installer\n"
           "                                 would (\"policy FILE\" is the same)\n"
           "  q9cfg policy diff FILE [--base F] [--json]\n"
           "                                 what an apply would change; changes nothing\n"
           "  q9cfg domodal --flags F [--page N] [--path1 P] [--path2 P]\n"
           "                                 Q9CfgUL_DoModal with exactly these arguments\n"
           "  q9cfg msgbox KIND [VALUE]      Q9CfgUL_MsgBox\n"
           "  q9cfg report                   Q9CfgUL_Report\n"
           "\n"
           "Options: --flags F (names or numbers joined by ',' or '|': " +
           FlagNameList() +
           "), --parent WINDOW-ID, --path1 FILE, --library PATH.\n"
           "Exit status: 0 the call was made, 2 bad command line, 4 no library or entry point;\n"
           "policy diff: 0 nothing would change, 1 something would; policy apply: 0 applied,\n"
           "3 the policy cannot be merged (nothing was called), 5 the library refused.\n";
}

int RunHostCommand(const std::vector<std::string>& words, const std::string& programDirectory,
                   std::ostream& out, std::ostream& err) {
    if (words.empty() || words[0] == "--help" || words[0] == "-h" || words[0] == "help") {
        (words.empty() ? err : out) << HostUsage();
        return words.empty() ? kBadCommand : kCalled;
    }
    try {
        Request request = ParseRequest(words);
        const bool doModal = IsDoModalCommand(request.command);
        if (doModal) {
            PrepareDoModal(request);
        } else if (request.command == "msgbox") {
            PrepareMsgBox(request);
        } else if (request.command == "report") {
            ExpectOperands(request, 0, 0, "no operands");
        } else {
            throw BadCommand("unknown command \"" + request.command + "\"");
        }
        const std::string path =
            request.library.empty() ? programDirectory + "libQ9CfgUL.so" : request.library;
        const Library library(path);
        if (!library.loaded()) {
            err << "q9cfg: cannot load " << path << ": " << dlerror() << "\n";
            return kNoLibrary;
        }
        const int status = doModal ? CallDoModalCommand(library, request, out, err)
                           : request.command == "msgbox" ? CallMsgBox(library, request, out)
                                                         : CallReport(library, out);
        if (status < 0) {
            err << "q9cfg: " << path << " has no entry point for \"" << request.command
                << "\"\n";
            return kNoLibrary;
        }
        return status;
    } catch (const BadCommand& bad) {
        err << "q9cfg: " << bad.message << "\n\n" << HostUsage();
        return kBadCommand;
    }
}
