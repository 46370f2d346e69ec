// The library in an installation lacking any of the 128 subsets of its seven
// optional sibling libraries, in every mode, silent and not: message boxes
// are answered and dialogs cancelled as a person would. Nothing crashes, and
// each call gives the design's result for what is missing: without function
// registration no call is authorized (a box says so unless the call is
// silent); with it, a silent policy or wizard answers 1 and a cancelled
// dialog or wizard 2, whatever else is missing.

#include <gtest/gtest.h>

#include <QDialog>
#include <string>
#include <vector>

#include "BoxAnswerer.h"
#include "CallerInstallation.h"
#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "q9cfgul.h"

namespace missing_siblings_test {
namespace {

constexpr const char* kOptional[] = {"OrvI18N", "OrvInst",  "Q9SSCtrl", "Q9P3ATHL",
                                     "Q9IMcfg", "Q9MsgFlt", "OrvDMZ"};
constexpr unsigned kRegistrationBit = 1u << 2;  // Q9SSCtrl in kOptional
constexpr unsigned kSubsets = 1u << 7;

struct Call {
    const char* name;
    uint32_t flags;
    int32_t resultWithRegistration;
    bool opensADialog;
};

constexpr Call kCalls[] = {
    {"dialog", DMF_ModeDialog, 2, true},
    {"wizard", DMF_ModeWizard, 2, true},
    {"silent policy", DMF_ModeDialog | DMF_Silent, 1, false},
    {"silent wizard", DMF_ModeWizard | DMF_Silent, 1, false},
    {"single page", DMF_ModeSinglePage, 2, true},
    // The silent flag has no effect in the single page mode.
    {"single page, silent flag", DMF_ModeSinglePage | DMF_Silent, 2, true},
};

std::string SubsetName(unsigned subset) {
    std::string name;
    for (unsigned i = 0; i < std::size(kOptional); ++i) {
        if (subset & (1u << i)) name += std::string(name.empty() ? "" : "+") + kOptional[i];
    }
    return name.empty() ? "none" : name;
}

// One installation with the siblings of subset; every call of kCalls.
void ExpectResultsWith(unsigned subset) {
    SCOPED_TRACE("siblings present: " + SubsetName(subset));
    std::vector<const char*> present;
    for (unsigned i = 0; i < std::size(kOptional); ++i) {
        if (subset & (1u << i)) present.push_back(kOptional[i]);
    }
    Q9CfgE_SetStyleEx(257, "", 0);
    CallerInstallation caller(present);
    caller.install.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    auto* doModal = caller.Entry<DoModalEntry>("Q9CfgUL_DoModal");
    ASSERT_NE(doModal, nullptr);
    const bool hasRegistration = (subset & kRegistrationBit) != 0;
    for (const Call& call : kCalls) {
        SCOPED_TRACE(call.name);
        BoxAnswerer boxes;
        DialogDriver cancel([](QDialog* dialog) { dialog->reject(); });
        int32_t page = 0;
        const int32_t result = doModal(0, call.flags | DMF_NoAuthenticate, &page, nullptr, nullptr);
        if (hasRegistration) {
            EXPECT_EQ(result, call.resultWithRegistration);
            EXPECT_EQ(cancel.Done(), call.opensADialog);
            continue;
        }
        EXPECT_EQ(result, 2);
        EXPECT_FALSE(cancel.Done()) << "no dialog without authorization";
        const bool silent = (call.flags & DMF_Silent) != 0;
        ASSERT_EQ(boxes.boxes.size(), silent ? 0u : 1u);
        if (!silent) {
            EXPECT_TRUE(boxes.boxes[0].text.startsWith("Sorry, you are not authorized"))
                << boxes.boxes[0].text.toStdString();
        }
    }
    Q9CfgE_SetStyleEx(257, "", 0);
}

}  // namespace

// Each subset loads the library afresh from an installation of its own. The
// subsets go in blocks of 16, a test each, so that the blocks run side by
// side and each stays well within the time a test has.
constexpr unsigned kBlockSize = 16;

class MissingSiblingsTest : public testing::TestWithParam<unsigned> {};

TEST_P(MissingSiblingsTest, EveryModeGivesTheResultForWhatIsThereInEverySubset) {
    const unsigned first = GetParam() * kBlockSize;
    for (unsigned subset = first; subset < first + kBlockSize; ++subset) ExpectResultsWith(subset);
}

INSTANTIATE_TEST_SUITE_P(Subsets, MissingSiblingsTest, testing::Range(0u, kSubsets / kBlockSize));

}  // namespace missing_siblings_test
