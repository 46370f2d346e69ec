// "File Types to Scan": "All files" and the four kinds that exclude it, the
// customized types and the checks of their text, and the word saved.

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <string>

#include "AdvancedScanTest.h"
#include "options/ScanBits.h"
#include "pages/scan/FileTypeTabPage.h"

namespace {

constexpr int kAllFiles = 1058;
constexpr int kExecutables = 1059;
constexpr int kMacros = 1060;
constexpr int kScripts = 1048;
constexpr int kCustomized = 1049;
constexpr int kCustomEdit = 1050;

class FileTypeTabTest : public AdvancedScanTest {
protected:
    CFileTypeTabPage& Make(uint32_t options, const std::string& extensions = "") {
        AdvancedScanValues values;
        values.options = options;
        values.extensions = extensions;
        m_page = MakeTab<CFileTypeTabPage>(values);
        return *m_page;
    }
    QLineEdit* Edit() const {
        return qobject_cast<QLineEdit*>(ctl::Find(m_page.get(), kCustomEdit));
    }
    // The five boxes, in the order of the ids above.
    std::vector<bool> Shown() const {
        std::vector<bool> boxes;
        for (int id : {kAllFiles, kExecutables, kMacros, kScripts, kCustomized})
            boxes.push_back(IsChecked(m_page.get(), id));
        return boxes;
    }
    // The options word as Save leaves it.
    uint32_t Saved() const {
        m_page->Save();
        return m_page->Values().options;
    }

    std::unique_ptr<CFileTypeTabPage> m_page;
};

using Checks = std::vector<bool>;

TEST_F(FileTypeTabTest, AllFilesLoadsAloneAndTheKindsFollowTheirBitsOtherwise) {
    Make(kScanAllFiles | kScanExecutables | kScanCustomized);
    EXPECT_EQ(Shown(), (Checks{true, false, false, false, false}));
    Make(kScanExecutables | kScanScripts);
    EXPECT_EQ(Shown(), (Checks{false, true, false, true, false}));
    Make(kScanMacros | kScanCustomized, "doc");
    EXPECT_EQ(Shown(), (Checks{false, false, true, false, true}));
    EXPECT_EQ(Edit()->text(), "doc");
    EXPECT_EQ(m_page->IsModified(), 0);
}

TEST_F(FileTypeTabTest, CheckingAllFilesClearsTheKinds) {
    Make(kScanExecutables | kScanMacros | kScanScripts | kScanCustomized, "doc");
    Click(m_page.get(), kAllFiles);
    EXPECT_EQ(Shown(), (Checks{true, false, false, false, false}));
    EXPECT_EQ(Saved() & (kScanAllFiles | kScanTypeKinds), kScanAllFiles);
}

TEST_F(FileTypeTabTest, ClearingAllFilesChecksTheDefaultKinds) {
    Make(kScanAllFiles);
    Click(m_page.get(), kAllFiles);
    EXPECT_EQ(Shown(), (Checks{false, true, true, true, false}));
    EXPECT_EQ(Saved() & (kScanAllFiles | kScanTypeKinds), kScanDefaultKinds);
}

TEST_F(FileTypeTabTest, UncheckingAllFilesWithCustomizedOnFromBeforeLeavesItOff) {
    Make(kScanCustomized, "doc");
    Click(m_page.get(), kAllFiles);
    Click(m_page.get(), kAllFiles);
    EXPECT_EQ(Shown(), (Checks{false, true, true, true, false}));
    EXPECT_FALSE(Edit()->isEnabled());
}

TEST_F(FileTypeTabTest, TheKindsClearAllFilesAndCheckItWhenNoneIsLeft) {
    Make(kScanAllFiles);
    Click(m_page.get(), kMacros);
    EXPECT_EQ(Shown(), (Checks{false, false, true, false, false}));
    Click(m_page.get(), kMacros);
    EXPECT_EQ(Shown(), (Checks{true, false, false, false, false}));
    Click(m_page.get(), kCustomized);
    EXPECT_EQ(Shown(), (Checks{false, false, false, false, true}));
}

TEST_F(FileTypeTabTest, TheEditIsEnabledWhileCustomizedIsChecked) {
    Make(kScanExecutables);
    EXPECT_FALSE(Edit()->isEnabled());
    Click(m_page.get(), kCustomized);
    EXPECT_TRUE(Edit()->isEnabled());
    Click(m_page.get(), kAllFiles);
    EXPECT_FALSE(Edit()->isEnabled());
}

TEST_F(FileTypeTabTest, AllFilesAndCustomizedThroughTheTabsBoxKeepOnlyAllFiles) {
    Make(0x80000000 | kScanAllFiles | kScanCustomized, "doc");
    Click(m_page.get(), kAllFiles);
    Click(m_page.get(), kAllFiles);
    EXPECT_EQ(Saved(), 0x80000000 | kScanAllFiles);
    EXPECT_EQ(m_page->Values().extensions, "doc");
}

TEST_F(FileTypeTabTest, SaveChangesOnlyTheFileTypeBits) {
    Make(~(kScanAllFiles | kScanTypeKinds) | kScanScripts);
    Click(m_page.get(), kExecutables);
    EXPECT_EQ(Saved(), ~(kScanAllFiles | kScanTypeKinds) | kScanScripts | kScanExecutables);
}

TEST_F(FileTypeTabTest, ClicksAndTypingMarkTheTab) {
    for (int id : {kAllFiles, kExecutables, kMacros, kScripts, kCustomized}) {
        Make(kScanCustomized, "doc");
        Click(m_page.get(), id);
        EXPECT_EQ(m_page->IsModified(), 1) << id;
    }
    Make(kScanCustomized, "doc");
    Edit()->setText("set by the program");
    EXPECT_EQ(m_page->IsModified(), 0);
    QTest::keyClicks(Edit(), "x");
    EXPECT_EQ(m_page->IsModified(), 1);
}

// --- The customized types ----------------------------------------------------

class CustomTypesTest : public FileTypeTabTest {
protected:
    // Validates text typed with "Customized" checked; the message shown, or
    // "" when the text passed.
    std::string Check(const std::string& text) {
        Make(kScanCustomized, text);
        m_messages.messages.clear();
        const int32_t result = m_page->Validate();
        EXPECT_EQ(result != 0, !m_messages.messages.empty()) << text;
        return OnlyMessage();
    }
};

constexpr const char* kBlank =
    "Configuration Error: You cannot leave this blank. Please type in a valid format. ";

TEST_F(CustomTypesTest, BlanksAroundTheTypesAreRemoved) {
    EXPECT_EQ(Check(" exe /dll  / doc "), "");
    EXPECT_EQ(Edit()->text(), "exe/dll/doc");
    Click(m_page.get(), kMacros);
    m_page->Save();
    EXPECT_EQ(m_page->Values().extensions, "exe/dll/doc");
}

TEST_F(CustomTypesTest, TwoSlashesInARowOrASlashAtTheEndAreRefused) {
    EXPECT_EQ(Check("exe//dll"), kBlank);
    EXPECT_EQ(Check("exe/dll/"), kBlank);
    EXPECT_EQ(Check("exe/ /dll"), kBlank);
    EXPECT_EQ(Edit()->text(), "exe/ /dll");
}

TEST_F(CustomTypesTest, ADotIsRefused) {
    EXPECT_EQ(Check("exe/.dll"),
              "Configuration Error: The following characters cannot be used as a file type.\n\n"
              "\\ : * \"\" . < > |");
    for (const char* text : {"a\\b", "a:b", "a*b", "a\"b", "a<b", "a>b", "a|b"})
        EXPECT_NE(Check(text), "") << text;
}

TEST_F(CustomTypesTest, AnEmptyTextIsRefused) {
    EXPECT_EQ(Check(""),
              "Configuration Error: Customized file types have not been set.\n"
              "Please enter the file types to scan.");
}

TEST_F(CustomTypesTest, ATextOverTheLimitIsRefusedWithIt) {
    EXPECT_EQ(Check(std::string(255, 'a')), "");
    EXPECT_EQ(Check(std::string(256, 'a')),
              "Configuration Error: The number of words exceeds allowable length.\n"
              "Please enter less than 255 words.");
}

TEST_F(CustomTypesTest, ARefusedTextHasTheFocus) {
    Make(kScanCustomized, "a.b");
    m_parent.show();
    QApplication::setActiveWindow(&m_parent);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_parent));
    EXPECT_EQ(m_page->Validate(), 1);
    EXPECT_TRUE(Edit()->hasFocus());
}

TEST_F(CustomTypesTest, WithoutCustomizedTheTextIsNotChecked) {
    Make(kScanExecutables, "a.b");
    EXPECT_EQ(m_page->Validate(), 0);
    EXPECT_TRUE(m_messages.messages.empty());
    EXPECT_EQ(Edit()->text(), "a.b");
}

}  // namespace
