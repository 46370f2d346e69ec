#pragma once

// Ties a page's controls to store values, so that a page states what each
// control means and the binder does the rest, the same way on every page:
//
//   Show      sets every bound control from a source of values (the store
//             for Load, the factory defaults for Default);
//   Save      re-reads each bound word from the store, replaces only the
//             bits its controls own, and writes it back (a word declared
//             rebuilt is made of its controls' bits alone); texts are
//             written whole;
//   Validate  runs the range and length checks of the enabled number and
//             text fields (and of the number fields checked always) with
//             the common messages, in binding order, and puts the focus on
//             the first field that fails;
//   enable rules: a dependent control is enabled while its check box is
//             checked and itself enabled, re-run after every Show and every
//             user change.
//
// Only a user's action on a bound control reports a change; setting
// controls from values never does, nor does a click on the radio that is on
// already.

#include <QPointer>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "options/StoreValues.h"

class CNumberSpin;
class QAbstractButton;
class QComboBox;
class QLineEdit;
class QWidget;

// A choice among several, shown by a radio group or a combo: decode gives
// the index to show for a word, encode the word with the bits of an index.
// The choice owns the bits of mask and nothing else of the word.
struct WordCodec {
    std::function<int(uint32_t word)> decode;
    std::function<uint32_t(uint32_t word, int index)> encode;
    uint32_t mask = 0;
};

// Whether a check box shows its bits set or clear as checked.
enum class BitSense { kCheckedWhenSet, kCheckedWhenClear };
// Whether Show sets a check box that is hidden or disabled by itself: the
// function switches keep such a box as it is.
enum class BitShow { kAlways, kWhenAvailable };
// Whether Validate checks a field that is disabled by itself (its box is
// clear): most pages check only what the user can change, some check every
// field.
enum class FieldCheck { kWhenEnabled, kAlways };

class CPageBinder {
public:
    CPageBinder();
    ~CPageBinder();
    CPageBinder(const CPageBinder&) = delete;
    CPageBinder& operator=(const CPageBinder&) = delete;

    // Where Save reads and writes the bound values: the store unless set.
    // The binder does not own home.
    void SetHome(ValueHome* home) { m_home = home; }
    ValueHome& Home() const { return *m_home; }

    // A check box for the bits of a word (all of them set, or all clear).
    void Bit(QAbstractButton* box, StoreAddress word, uint32_t bits,
             BitSense sense = BitSense::kCheckedWhenSet, BitShow show = BitShow::kAlways);
    // A check box whose state a codec gives: index 1 checked, 0 clear.
    void Check(QAbstractButton* box, StoreAddress word, WordCodec codec);
    // A radio group: radio i stands for index i of the codec.
    void Radios(std::vector<QAbstractButton*> radios, StoreAddress word, WordCodec codec);
    // A combo: item i stands for index i of the codec.
    void Combo(QComboBox* combo, StoreAddress word, WordCodec codec);
    // A number field (the spin's buddy) for a whole word, within low..high.
    void Number(CNumberSpin* spin, StoreAddress word, int32_t low, int32_t high,
                FieldCheck check = FieldCheck::kWhenEnabled);
    // A text field for a store text of at most maxLength characters.
    void Text(QLineEdit* edit, StoreAddress text, int32_t maxLength,
              FieldCheck check = FieldCheck::kWhenEnabled);
    // Bits of a word that no control shows but the page keeps in *held
    // between Show and Save (a dialog of the page edits them there). Bound
    // before the controls of the same word, so that their codecs see them.
    void Hold(StoreAddress word, uint32_t bits, uint32_t* held);
    // A text kept the same way.
    void HoldText(StoreAddress text, std::string* held);
    // Bits that the page writes itself (a hook, not a control); declared so
    // that the page's share of the store is known in one place.
    void Owns(StoreAddress word, uint32_t bits);
    // A text that the page writes itself (an enciphered one, say).
    void OwnsText(StoreAddress text);
    // Save writes word from its controls' bits alone: the bits that no
    // control owns are cleared instead of kept, and the page owns the whole
    // word.
    void Rebuilt(StoreAddress word);

    // dependents are enabled while box is checked and enabled itself.
    void EnableWhen(QAbstractButton* box, std::vector<QWidget*> dependents);

    void Show(const StoreValues& values) const;
    void Save() const;
    // word with every binding of address applied, as Save would write it
    // over word.
    uint32_t CollectWord(StoreAddress address, uint32_t word) const;
    // Shows word in the bindings of address alone.
    void ShowWord(StoreAddress address, uint32_t word) const;
    // 0 when every field passes; otherwise the first failure has been told
    // to the user (owner is the message's parent) and 1 is returned.
    int32_t Validate(QWidget* owner) const;
    void ApplyEnableRules() const;

    // changed runs after every user action on a bound control.
    void OnUserChange(std::function<void()> changed);

    // The bits of each word that the page owns: its controls' and the
    // declared ones.
    std::map<StoreAddress, uint32_t> OwnedWords() const;
    // The texts its fields own and the declared ones.
    std::vector<StoreAddress> OwnedTexts() const;

    class Binding;

private:
    struct EnableRule {
        QPointer<QAbstractButton> box;
        std::vector<QPointer<QWidget>> dependents;
    };

    void Add(std::unique_ptr<Binding> binding);
    bool IsRebuilt(StoreAddress word) const;

    std::vector<std::unique_ptr<Binding>> m_bindings;
    std::vector<EnableRule> m_enableRules;
    std::map<StoreAddress, uint32_t> m_declared;
    std::vector<StoreAddress> m_declaredTexts;
    std::vector<StoreAddress> m_rebuilt;
    std::function<void()> m_changed;
    ValueHome m_store;
    ValueHome* m_home = &m_store;
};
