// A bound page as every page built on the binder gets it: one routine behind
// Load and Default, saves that change only the page's own bits, the common
// range and length checks, enable rules, and the modified flags that only a
// user's action sets.

#include <Q9CfgE.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <map>
#include <memory>
#include <string>

#include "SwitchPageTest.h"
#include "controls/NumberSpin.h"
#include "framework/DialogControls.h"
#include "options/StoreAccess.h"
#include "pages/BoundPage.h"
#include "text/StringTable.h"

namespace {

constexpr uint32_t kSection = 0;
constexpr StoreAddress kOptions = {kSection, 0};  // the bits and choices
constexpr StoreAddress kSize = {kSection, 2};     // the number
constexpr StoreAddress kSound = {kSection, 1};    // the text

constexpr uint32_t kBoxBit = 0x1;
constexpr uint32_t kInvertedBit = 0x2;
constexpr uint32_t kRadioBits = 0x30;   // radio i: bit 4 + i, none: 0
constexpr uint32_t kComboBits = 0x700;  // the index in bits 8 to 10
constexpr uint32_t kDeclaredBit = 0x8000;

constexpr int32_t kLow = 1;
constexpr int32_t kHigh = 4096;
constexpr int32_t kTextLimit = 8;

WordCodec RadioCodec() {
    return {[](uint32_t word) { return (word & 0x20) != 0 ? 1 : 0; },
            [](uint32_t word, int index) {
                return ReplaceBits(word, index == 1 ? 0x20U : 0x10U, kRadioBits);
            },
            kRadioBits};
}

WordCodec ComboCodec() {
    return {[](uint32_t word) { return static_cast<int>((word & kComboBits) >> 8); },
            [](uint32_t word, int index) {
                return ReplaceBits(word, static_cast<uint32_t>(index) << 8, kComboBits);
            },
            kComboBits};
}

// A page with one control of each kind, made in code.
class TestPage : public CBoundPage {
public:
    explicit TestPage(Applies applies) : CBoundPage(0, applies) {}

    QCheckBox* box = nullptr;
    QCheckBox* inverted = nullptr;
    QRadioButton* radios[2] = {};
    QComboBox* combo = nullptr;
    QLineEdit* sizeField = nullptr;
    CNumberSpin* sizeSpin = nullptr;
    QLineEdit* sound = nullptr;
    int showMoreCalls = 0;

protected:
    bool BuildControls() override {
        box = Make<QCheckBox>(1001);
        inverted = Make<QCheckBox>(1002);
        radios[0] = Make<QRadioButton>(1003);
        radios[1] = Make<QRadioButton>(1004);
        combo = Make<QComboBox>(1005);
        for (const char* item : {"zero", "one", "two", "three"}) combo->addItem(item);
        sizeField = Make<QLineEdit>(1006);
        sizeSpin = Make<CNumberSpin>(1007);
        sizeSpin->SetBuddy(sizeField);
        sound = Make<QLineEdit>(1008);
        return true;
    }

    void BindControls() override {
        m_bind.Bit(box, kOptions, kBoxBit);
        m_bind.Bit(inverted, kOptions, kInvertedBit, BitSense::kCheckedWhenClear);
        m_bind.Radios({radios[0], radios[1]}, kOptions, RadioCodec());
        m_bind.Combo(combo, kOptions, ComboCodec());
        m_bind.Number(sizeSpin, kSize, kLow, kHigh);
        m_bind.Text(sound, kSound, kTextLimit);
        m_bind.Owns(kOptions, kDeclaredBit);
        // The number and the text count only while the box is checked.
        m_bind.EnableWhen(box, {sizeField, sizeSpin, sound});
    }

    void ShowMore(const StoreValues&) override { ++showMoreCalls; }

private:
    template <typename Control>
    Control* Make(int id) {
        auto* control = new Control(this);
        ctl::SetId(control, id);
        return control;
    }
};

class BoundPageTest : public SwitchPageTest {
protected:
    std::unique_ptr<TestPage> Make(CBoundPage::Applies applies = CBoundPage::Applies::kYes) {
        auto page = std::make_unique<TestPage>(applies);
        EXPECT_TRUE(page->Create(&m_parent));
        return page;
    }

    static void SetText(StoreAddress address, const char* text) {
        Q9CfgE_SetStrEx(address.section, address.key, text);
    }
    static std::string Text(StoreAddress address) {
        const char* text = Q9CfgE_GetStrEx(address.section, address.key);
        return text ? text : "";
    }
    static uint32_t Word(StoreAddress address) {
        return SiblingTest::Word(address.section, address.key);
    }
    static void SetWord(StoreAddress address, uint32_t value) {
        SiblingTest::SetWord(address.section, address.key, value);
    }

    // Options: box set, inverted bit clear (checked), radio 1, combo 2.
    static constexpr uint32_t kStoredOptions = 0x1 | 0x20 | 0x200;
};

TEST_F(BoundPageTest, LoadShowsEveryBoundValueAndLeavesThePageUnmodified) {
    SetWord(kOptions, kStoredOptions);
    SetWord(kSize, 1500);
    SetText(kSound, "ding.wav");
    auto page = Make();
    EXPECT_TRUE(page->box->isChecked());
    EXPECT_TRUE(page->inverted->isChecked());
    EXPECT_FALSE(page->radios[0]->isChecked());
    EXPECT_TRUE(page->radios[1]->isChecked());
    EXPECT_EQ(page->combo->currentIndex(), 2);
    EXPECT_EQ(page->sizeField->text().toStdString(), "1,500");
    EXPECT_EQ(page->sound->text().toStdString(), "ding.wav");
    EXPECT_EQ(page->IsModified(), 0);
    EXPECT_EQ(page->NeedApply(), 0);
    EXPECT_EQ(page->showMoreCalls, 1);
}

TEST_F(BoundPageTest, DefaultShowsTheFactoryDefaultsThroughTheSameRoutineAndMarksThePage) {
    WriteDefaults(
        "[CES_General]\nCEK_GeneralOptions=dword:102\nCEK_AlertSound=\"beep.wav\"\n"
        "CEK_ScanLogSize=dword:40\n");
    SetWord(kOptions, kStoredOptions);
    SetWord(kSize, 1500);
    auto page = Make();
    EXPECT_EQ(page->OnDefault(), 1);
    EXPECT_FALSE(page->box->isChecked());
    EXPECT_FALSE(page->inverted->isChecked());
    EXPECT_TRUE(page->radios[0]->isChecked());
    EXPECT_EQ(page->combo->currentIndex(), 1);
    EXPECT_EQ(page->sizeField->text().toStdString(), "64");
    EXPECT_EQ(page->sound->text().toStdString(), "beep.wav");
    EXPECT_EQ(page->showMoreCalls, 2);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    // Default never writes the store.
    EXPECT_EQ(Word(kOptions), kStoredOptions);
}

TEST_F(BoundPageTest, APageThatDoesNotApplyIsModifiedButNeedsNoApply) {
    auto page = Make(CBoundPage::Applies::kNo);
    page->box->click();
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 0);
}

TEST_F(BoundPageTest, SaveReadsEachWordAgainAndReplacesOnlyTheBitsItsControlsOwn) {
    SetWord(kOptions, kStoredOptions);
    auto page = Make();
    page->box->click();        // clears bit 0
    page->inverted->click();   // sets bit 1
    page->radios[0]->click();  // bit 4 instead of bit 5
    page->combo->setCurrentIndex(5 & 3);
    // Another page changed the word's other bits in the meantime.
    SetWord(kOptions, 0xFFFF0000 | kStoredOptions);
    page->Save();
    EXPECT_EQ(Word(kOptions), 0xFFFF0000 | 0x2 | 0x10 | 0x100);
}

TEST_F(BoundPageTest, SaveWritesTheNumberAndTheText) {
    auto page = Make();
    page->sizeField->setText("2,048");
    page->sound->setText("chime.wav");
    page->Save();
    EXPECT_EQ(Word(kSize), 2048U);
    EXPECT_EQ(Text(kSound), "chime.wav");
}

TEST_F(BoundPageTest, ACoveredPageSavesNothing) {
    SetWord(kOptions, kStoredOptions);
    auto page = Make();
    page->box->click();
    page->CoverWithNotice("Not available");
    page->Save();
    EXPECT_EQ(Word(kOptions), kStoredOptions);
    EXPECT_EQ(page->Validate(), 0);
}

TEST_F(BoundPageTest, ACoveredPagePassesValidationWhateverItsFieldsHold) {
    SetWord(kOptions, kBoxBit);
    auto page = Make();
    page->sizeField->setText("0");
    page->CoverWithNotice("Not available");
    EXPECT_EQ(page->Validate(), 0);
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(BoundPageTest, OnlyAUsersActionMarksThePageModified) {
    SetWord(kOptions, kBoxBit);
    auto page = Make();
    page->box->setChecked(!page->box->isChecked());
    page->combo->setCurrentIndex(3);
    page->sound->setText("typed by the program");
    EXPECT_EQ(page->IsModified(), 0);
    QTest::keyClicks(page->sound, "x");
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(BoundPageTest, EachKindOfControlReportsTheUsersChange) {
    SetWord(kOptions, kBoxBit);
    auto page = Make();
    page->radios[1]->click();
    EXPECT_EQ(page->IsModified(), 1);
    page->Load();
    EXPECT_EQ(page->IsModified(), 0);
    page->sizeSpin->StepBy(1);
    EXPECT_EQ(page->IsModified(), 1);
    page->Load();
    QTest::keyClicks(page->sizeField, "7");
    EXPECT_EQ(page->IsModified(), 1);
    page->Load();
    page->combo->activated(1);
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(BoundPageTest, AClickOnTheRadioThatIsOnIsNoChange) {
    SetWord(kOptions, 0x20);
    auto page = Make();
    ASSERT_TRUE(page->radios[1]->isChecked());
    page->radios[1]->click();
    EXPECT_EQ(page->IsModified(), 0);
    page->radios[0]->click();
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(BoundPageTest, EnableRulesFollowTheBoxOnLoadAndOnClick) {
    SetWord(kOptions, 0);
    auto page = Make();
    EXPECT_FALSE(page->sizeField->isEnabled());
    EXPECT_FALSE(page->sound->isEnabled());
    page->box->click();
    EXPECT_TRUE(page->sizeField->isEnabled());
    EXPECT_TRUE(page->sizeSpin->isEnabled());
    EXPECT_TRUE(page->sound->isEnabled());
    // A box that is disabled itself disables what depends on it.
    page->box->setEnabled(false);
    page->Load();
    EXPECT_FALSE(page->sound->isEnabled());
}

TEST_F(BoundPageTest, ANumberOutOfRangeIsToldWithTheRangeAndHoldsThePage) {
    SetWord(kOptions, kBoxBit);
    auto page = Make();
    m_parent.show();
    QApplication::setActiveWindow(&m_parent);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_parent));
    page->sizeField->setText("5,000");
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, "Please enter the values between 1 ~ 4,096.");
    EXPECT_EQ(m_messages.messages[0].caption, LoadString(strings::kConfigurationError));
    EXPECT_TRUE(page->sizeField->hasFocus());
    page->sizeField->setText("4,096");
    EXPECT_EQ(page->Validate(), 0);
}

TEST_F(BoundPageTest, ATextBeyondItsLimitIsToldWithTheLengthMessage) {
    SetWord(kOptions, kBoxBit);
    auto page = Make();
    page->sound->setText("123456789");
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text.rfind("The number of words exceeds allowable length.", 0),
              0U);
    page->sound->setText("12345678");
    EXPECT_EQ(page->Validate(), 0);
}

TEST_F(BoundPageTest, AFieldSwitchedOffByItsBoxIsNotChecked) {
    SetWord(kOptions, 0);
    auto page = Make();
    page->sizeField->setText("0");
    page->sound->setText("far too long a text");
    EXPECT_EQ(page->Validate(), 0);
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(BoundPageTest, ThePageKnowsWhichBitsItOwns) {
    auto page = Make();
    const auto owned = page->Binder().OwnedWords();
    ASSERT_EQ(owned.size(), 2U);
    EXPECT_EQ(owned.at(kOptions), kBoxBit | kInvertedBit | kRadioBits | kComboBits | kDeclaredBit);
    EXPECT_EQ(owned.at(kSize), 0xFFFFFFFFU);
    ASSERT_EQ(page->Binder().OwnedTexts().size(), 1U);
    EXPECT_EQ(page->Binder().OwnedTexts()[0], kSound);
}

// --- Held values, codec check boxes and a home of the page's own ---------

constexpr uint32_t kAnyBits = 0x10101;   // the box reads on if any is set
constexpr uint32_t kHeldBits = 0x0F000;  // kept by the page, no control
constexpr uint32_t kFollowerBit = 0x40;  // a box whose save depends on them
constexpr StoreAddress kHeldText = {kSection, 3};

// A home in memory: the values of a dialog, not of the store.
class MemoryHome : public ValueHome {
public:
    uint32_t Word(StoreAddress address) const override {
        const auto it = words.find(address);
        return it == words.end() ? 0 : it->second;
    }
    std::string Text(StoreAddress address) const override {
        const auto it = texts.find(address);
        return it == texts.end() ? std::string() : it->second;
    }
    void Write(StoreAddress address, uint32_t word) override { words[address] = word; }
    void WriteText(StoreAddress address, const std::string& text) override {
        texts[address] = text;
    }

    std::map<StoreAddress, uint32_t> words;
    std::map<StoreAddress, std::string> texts;
};

// On: all of kAnyBits; off: none. Reads on when any is set.
WordCodec AnyCodec() {
    return {[](uint32_t word) { return (word & kAnyBits) != 0 ? 1 : 0; },
            [](uint32_t word, int index) { return SetBits(word, kAnyBits, index == 1); },
            kAnyBits};
}

// Saved set when the box is on or when no held bit is left: the kind of
// rule the file types follow.
WordCodec FollowerCodec() {
    return {[](uint32_t word) { return (word & kFollowerBit) != 0 ? 1 : 0; },
            [](uint32_t word, int index) {
                return SetBits(word, kFollowerBit, index == 1 || (word & kHeldBits) == 0);
            },
            kFollowerBit};
}

class HeldPage : public CBoundPage {
public:
    explicit HeldPage(ValueHome* home) : CBoundPage(0, Applies::kNo), m_home(home) {}

    QCheckBox* any = nullptr;
    QCheckBox* follower = nullptr;
    uint32_t held = 0;
    std::string heldText;

protected:
    bool BuildControls() override {
        any = new QCheckBox(this);
        follower = new QCheckBox(this);
        return true;
    }
    void BindControls() override {
        if (m_home != nullptr) m_bind.SetHome(m_home);
        m_bind.Hold(kOptions, kHeldBits, &held);
        m_bind.HoldText(kHeldText, &heldText);
        m_bind.Check(any, kOptions, AnyCodec());
        m_bind.Check(follower, kOptions, FollowerCodec());
    }

private:
    ValueHome* m_home;
};

class HeldPageTest : public BoundPageTest {
protected:
    std::unique_ptr<HeldPage> MakeHeld(ValueHome* home = nullptr) {
        auto page = std::make_unique<HeldPage>(home);
        EXPECT_TRUE(page->Create(&m_parent));
        return page;
    }
};

TEST_F(HeldPageTest, ACodecBoxReadsItsCodecAndWritesEveryBitOfIt) {
    SetWord(kOptions, 0x100);
    auto page = MakeHeld();
    EXPECT_TRUE(page->any->isChecked());
    page->Save();
    EXPECT_EQ(Word(kOptions) & kAnyBits, kAnyBits);
    page->any->click();
    page->Save();
    EXPECT_EQ(Word(kOptions) & kAnyBits, 0U);
}

TEST_F(HeldPageTest, HeldValuesComeFromLoadAndGoBackAtSave) {
    SetWord(kOptions, 0x3000 | 0x80000);
    SetText(kHeldText, "exe/dll");
    auto page = MakeHeld();
    EXPECT_EQ(page->held & kHeldBits, 0x3000U);
    EXPECT_EQ(page->heldText, "exe/dll");
    page->held = 0x4000;
    page->heldText = "doc";
    SetWord(kOptions, 0x3000 | 0x200000);  // a bit that nobody owns changed meanwhile
    page->Save();
    EXPECT_EQ(Word(kOptions), 0x4000U | 0x200000U);
    EXPECT_EQ(Text(kHeldText), "doc");
}

TEST_F(HeldPageTest, ControlsBoundAfterAHeldValueSeeItWhenTheyCollect) {
    SetWord(kOptions, 0x1000);
    auto page = MakeHeld();
    EXPECT_FALSE(page->follower->isChecked());
    page->Save();
    EXPECT_EQ(Word(kOptions) & kFollowerBit, 0U);
    page->held = 0;
    page->Save();
    EXPECT_EQ(Word(kOptions) & kFollowerBit, kFollowerBit);
}

TEST_F(HeldPageTest, CollectWordAndShowWordWorkOnOneWordWithoutTheStore) {
    SetWord(kOptions, 0);
    auto page = MakeHeld();
    page->any->click();
    page->held = 0x1000;
    EXPECT_EQ(page->Binder().CollectWord(kOptions, 0x80000), 0x80000U | 0x1000U | kAnyBits);
    page->Binder().ShowWord(kOptions, 0x2000 | kFollowerBit);
    EXPECT_FALSE(page->any->isChecked());
    EXPECT_TRUE(page->follower->isChecked());
    EXPECT_EQ(page->held, 0x2000U);
    EXPECT_EQ(Word(kOptions), 0U);
}

TEST_F(HeldPageTest, APageWithAHomeOfItsOwnNeverTouchesTheStore) {
    SetWord(kOptions, 0x1);
    MemoryHome home;
    home.words[kOptions] = 0x100 | 0x2000;
    home.texts[kHeldText] = "vbs";
    auto page = MakeHeld(&home);
    EXPECT_TRUE(page->any->isChecked());
    EXPECT_EQ(page->heldText, "vbs");
    page->any->click();
    page->Save();
    EXPECT_EQ(home.words[kOptions], 0x2000U);
    EXPECT_EQ(home.texts[kHeldText], "vbs");
    EXPECT_EQ(Word(kOptions), 0x1U);
}

}  // namespace
