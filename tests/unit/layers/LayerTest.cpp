// The layers of src/: every top folder is one layer, and a file may include
// the headers of its own folder and of lower layers only. A file's folder
// also says what of Qt it may use: platform/ none, the widget-free layers Qt
// Core at most, the others Qt Widgets too.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "support/TestPaths.h"

namespace {

namespace fs = std::filesystem;

enum class QtUse { kNone, kCore, kWidgets };

struct Layer {
    int rank;
    QtUse qt;
};

// From the bottom. Folders of one rank may not include each other.
const std::map<std::string, Layer> kLayers = {
    {"platform", {0, QtUse::kNone}},     {"beacon", {1, QtUse::kWidgets}},
    {"text", {1, QtUse::kCore}},         {"options", {2, QtUse::kCore}},
    {"portblock", {2, QtUse::kCore}},    {"session", {3, QtUse::kCore}},
    {"targets", {4, QtUse::kCore}},      {"schedule", {5, QtUse::kCore}},
    {"policy", {6, QtUse::kCore}},       {"framework", {6, QtUse::kWidgets}}, {"controls", {7, QtUse::kWidgets}},
    {"pages", {8, QtUse::kWidgets}},     {"shell", {9, QtUse::kWidgets}},
};

// Data only: forms, pictures, translations.
const std::string kResources = "resources";

struct Include {
    std::string header;
    bool angled;
};

// The include of a line, if it has one: #include <...> or #include "...".
std::optional<Include> IncludeOf(const std::string& line) {
    std::istringstream words(line);
    std::string directive;
    std::string target;
    words >> directive >> target;
    if (directive != "#include" || target.size() < 3) return std::nullopt;
    const bool angled = target.front() == '<' && target.back() == '>';
    const bool quoted = target.front() == '"' && target.back() == '"';
    if (!angled && !quoted) return std::nullopt;
    return Include{target.substr(1, target.size() - 2), angled};
}

std::vector<Include> IncludesOf(const fs::path& file) {
    std::vector<Include> includes;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (const auto include = IncludeOf(line)) includes.push_back(*include);
    }
    return includes;
}

// The header names a Qt module's include folder holds.
std::set<std::string> HeadersIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename());
    return names;
}

std::string TopFolderOf(const std::string& header) {
    const auto slash = header.find('/');
    return slash == std::string::npos ? std::string() : header.substr(0, slash);
}

class LayerTest : public ::testing::Test {
protected:
    static std::vector<fs::path> SourceFiles(const fs::path& folder) {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            const auto extension = entry.path().extension();
            if (extension == ".cpp" || extension == ".h") files.push_back(entry.path());
        }
        return files;
    }

    // What is wrong with one include of a file in folder, or "".
    std::string Problem(const std::string& folder, const Include& include) const {
        const Layer layer = kLayers.at(folder);
        if (!include.angled) {
            const std::string target = TopFolderOf(include.header);
            const auto it = kLayers.find(target);
            if (it == kLayers.end() || target == folder) return "";
            if (it->second.rank >= layer.rank) return "includes a header of a layer not below it";
            return "";
        }
        const std::string name = include.header;
        const bool widgets = widgets_.count(name) != 0 || TopFolderOf(name) == "QtWidgets";
        const bool core = core_.count(name) != 0 || TopFolderOf(name) == "QtCore";
        if (widgets && layer.qt != QtUse::kWidgets) return "uses Qt Widgets";
        if (core && layer.qt == QtUse::kNone) return "uses Qt";
        return "";
    }

    const fs::path source_ = fs::path(TestPath("source")) / "src";
    const std::set<std::string> widgets_ = HeadersIn(TestPath("qt_widgets_include"));
    const std::set<std::string> core_ = HeadersIn(TestPath("qt_core_include"));
};

TEST_F(LayerTest, EveryTopFolderIsALayerWithItsOwnTarget) {
    for (const auto& entry : fs::directory_iterator(source_)) {
        if (!entry.is_directory()) continue;
        const std::string folder = entry.path().filename();
        if (folder == kResources) continue;
        EXPECT_EQ(kLayers.count(folder), 1U) << folder << " is not a known layer";
        EXPECT_TRUE(fs::exists(entry.path() / "CMakeLists.txt")) << folder;
    }
}

TEST_F(LayerTest, NoFileIncludesAHigherLayerOrAQtModuleItsFolderMayNotUse) {
    std::vector<std::string> problems;
    for (const auto& [folder, layer] : kLayers) {
        for (const fs::path& file : SourceFiles(source_ / folder)) {
            for (const Include& include : IncludesOf(file)) {
                const std::string problem = Problem(folder, include);
                if (!problem.empty()) {
                    problems.push_back(fs::relative(file, source_).string() + " " + problem + ": " +
                                       include.header);
                }
            }
        }
    }
    for (const std::string& problem : problems) ADD_FAILURE() << problem;
}

// The check itself: a file that reaches up, or past its Qt module, is seen.
TEST_F(LayerTest, TheRulesSeeAnIncludeThatReachesUp) {
    EXPECT_NE(Problem("options", {"session/SiblingLibs.h", false}), "");
    EXPECT_NE(Problem("options", {"portblock/RuleFile.h", false}), "");
    EXPECT_NE(Problem("session", {"QWidget", true}), "");
    EXPECT_NE(Problem("session", {"QtWidgets/QLabel", true}), "");
    EXPECT_NE(Problem("platform", {"QString", true}), "");
    EXPECT_EQ(Problem("session", {"QString", true}), "");
    EXPECT_EQ(Problem("pages", {"session/SiblingLibs.h", false}), "");
    EXPECT_EQ(Problem("platform", {"Q9CfgE.h", true}), "");
}

}  // namespace
