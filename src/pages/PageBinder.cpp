#include "pages/PageBinder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>
#include <optional>
#include <utility>

#include "controls/GroupedNumber.h"
#include "controls/NumberSpin.h"
#include "options/StoreAccess.h"
#include "text/ValidatorMessages.h"

class CPageBinder::Binding {
public:
    virtual ~Binding() = default;
    virtual void Show(const StoreValues& values) = 0;
    // The word the binding owns bits of, if any, and those bits.
    virtual std::optional<StoreAddress> Word() const { return std::nullopt; }
    virtual uint32_t Mask() const { return 0; }
    // word with the control's value in its bits.
    virtual uint32_t Collect(uint32_t word) const { return word; }
    // The text the binding owns, if any, and its value.
    virtual std::optional<StoreAddress> TextAddress() const { return std::nullopt; }
    virtual std::string CollectText() const { return {}; }
    virtual int32_t Validate(QWidget* /*owner*/) const { return 0; }
    virtual void Connect(const std::function<void()>& changed) = 0;
};

namespace {

using Binding = CPageBinder::Binding;

// Enabled unless disabled by itself: a page that its shell disables for a
// moment does not disable its controls' rules.
bool IsEnabledItself(const QWidget* control) {
    return !control->testAttribute(Qt::WA_ForceDisabled);
}

bool IsAvailable(const QWidget* control) {
    return !control->isHidden() && IsEnabledItself(control);
}

class BitBinding : public Binding {
public:
    BitBinding(QAbstractButton* box, StoreAddress word, uint32_t bits, BitSense sense, BitShow show)
        : m_box(box), m_word(word), m_bits(bits), m_sense(sense), m_show(show) {}

    void Show(const StoreValues& values) override {
        if (m_show == BitShow::kWhenAvailable && !IsAvailable(m_box)) return;
        const bool set = (values.Word(m_word) & m_bits) == m_bits;
        m_box->setChecked(set == (m_sense == BitSense::kCheckedWhenSet));
    }
    std::optional<StoreAddress> Word() const override { return m_word; }
    uint32_t Mask() const override { return m_bits; }
    uint32_t Collect(uint32_t word) const override {
        const bool set = m_box->isChecked() == (m_sense == BitSense::kCheckedWhenSet);
        return SetBits(word, m_bits, set);
    }
    void Connect(const std::function<void()>& changed) override {
        QObject::connect(m_box, &QAbstractButton::clicked, m_box, [changed] { changed(); });
    }

private:
    QPointer<QAbstractButton> m_box;
    StoreAddress m_word;
    uint32_t m_bits;
    BitSense m_sense;
    BitShow m_show;
};

class CheckBinding : public Binding {
public:
    CheckBinding(QAbstractButton* box, StoreAddress word, WordCodec codec)
        : m_box(box), m_word(word), m_codec(std::move(codec)) {}

    void Show(const StoreValues& values) override {
        m_box->setChecked(m_codec.decode(values.Word(m_word)) != 0);
    }
    std::optional<StoreAddress> Word() const override { return m_word; }
    uint32_t Mask() const override { return m_codec.mask; }
    uint32_t Collect(uint32_t word) const override {
        return m_codec.encode(word, m_box->isChecked() ? 1 : 0);
    }
    void Connect(const std::function<void()>& changed) override {
        QObject::connect(m_box, &QAbstractButton::clicked, m_box, [changed] { changed(); });
    }

private:
    QPointer<QAbstractButton> m_box;
    StoreAddress m_word;
    WordCodec m_codec;
};

class HeldBinding : public Binding {
public:
    HeldBinding(StoreAddress word, uint32_t bits, uint32_t* held)
        : m_word(word), m_bits(bits), m_held(held) {}

    void Show(const StoreValues& values) override {
        *m_held = ReplaceBits(*m_held, values.Word(m_word), m_bits);
    }
    std::optional<StoreAddress> Word() const override { return m_word; }
    uint32_t Mask() const override { return m_bits; }
    uint32_t Collect(uint32_t word) const override { return ReplaceBits(word, *m_held, m_bits); }
    void Connect(const std::function<void()>& /*changed*/) override {}

private:
    StoreAddress m_word;
    uint32_t m_bits;
    uint32_t* m_held;
};

class HeldTextBinding : public Binding {
public:
    HeldTextBinding(StoreAddress text, std::string* held) : m_text(text), m_held(held) {}

    void Show(const StoreValues& values) override { *m_held = values.Text(m_text); }
    std::optional<StoreAddress> TextAddress() const override { return m_text; }
    std::string CollectText() const override { return *m_held; }
    void Connect(const std::function<void()>& /*changed*/) override {}

private:
    StoreAddress m_text;
    std::string* m_held;
};

// The values of a source, except that one word reads as given.
class OneWordValues : public StoreValues {
public:
    OneWordValues(const StoreValues& others, StoreAddress address, uint32_t word)
        : m_others(others), m_address(address), m_word(word) {}

    uint32_t Word(StoreAddress address) const override {
        return address == m_address ? m_word : m_others.Word(address);
    }
    std::string Text(StoreAddress address) const override { return m_others.Text(address); }

private:
    const StoreValues& m_others;
    StoreAddress m_address;
    uint32_t m_word;
};

class RadioBinding : public Binding {
public:
    RadioBinding(std::vector<QAbstractButton*> radios, StoreAddress word, WordCodec codec)
        : m_word(word), m_codec(std::move(codec)) {
        for (QAbstractButton* radio : radios) m_radios.emplace_back(radio);
    }

    void Show(const StoreValues& values) override {
        const int index = m_codec.decode(values.Word(m_word));
        for (size_t i = 0; i < m_radios.size(); ++i)
            m_radios[i]->setChecked(static_cast<int>(i) == index);
    }
    std::optional<StoreAddress> Word() const override { return m_word; }
    uint32_t Mask() const override { return m_codec.mask; }
    uint32_t Collect(uint32_t word) const override {
        for (size_t i = 0; i < m_radios.size(); ++i) {
            if (m_radios[i]->isChecked()) return m_codec.encode(word, static_cast<int>(i));
        }
        return word;
    }
    void Connect(const std::function<void()>& changed) override {
        // A click on the radio that is on already changes nothing.
        for (QAbstractButton* radio : m_radios) {
            QObject::connect(radio, &QAbstractButton::pressed, radio,
                             [this, radio] { m_pressedWasOn = radio->isChecked(); });
            QObject::connect(radio, &QAbstractButton::clicked, radio, [this, changed] {
                if (!m_pressedWasOn) changed();
            });
        }
    }

private:
    std::vector<QPointer<QAbstractButton>> m_radios;
    StoreAddress m_word;
    WordCodec m_codec;
    bool m_pressedWasOn = false;
};

class ComboBinding : public Binding {
public:
    ComboBinding(QComboBox* combo, StoreAddress word, WordCodec codec)
        : m_combo(combo), m_word(word), m_codec(std::move(codec)) {}

    void Show(const StoreValues& values) override {
        m_combo->setCurrentIndex(m_codec.decode(values.Word(m_word)));
    }
    std::optional<StoreAddress> Word() const override { return m_word; }
    uint32_t Mask() const override { return m_codec.mask; }
    uint32_t Collect(uint32_t word) const override {
        const int index = m_combo->currentIndex();
        return index < 0 ? word : m_codec.encode(word, index);
    }
    void Connect(const std::function<void()>& changed) override {
        QObject::connect(m_combo, &QComboBox::activated, m_combo, [changed] { changed(); });
    }

private:
    QPointer<QComboBox> m_combo;
    StoreAddress m_word;
    WordCodec m_codec;
};

class NumberBinding : public Binding {
public:
    NumberBinding(CNumberSpin* spin, StoreAddress word, int32_t low, int32_t high, FieldCheck check)
        : m_spin(spin), m_word(word), m_check(check) {
        m_spin->SetRange32(low, high);
    }

    void Show(const StoreValues& values) override {
        SetGroupedNumber(m_spin, static_cast<int32_t>(values.Word(m_word)));
    }
    std::optional<StoreAddress> Word() const override { return m_word; }
    uint32_t Mask() const override { return kWholeWord; }
    uint32_t Collect(uint32_t /*word*/) const override {
        return static_cast<uint32_t>(GetGroupedNumber(m_spin, nullptr));
    }
    int32_t Validate(QWidget* owner) const override {
        QLineEdit* field = m_spin->GetBuddy();
        if (field == nullptr) return 0;
        if (m_check == FieldCheck::kWhenEnabled && !IsEnabledItself(field)) return 0;
        if (ValidateGroupedNumber(owner, m_spin) == 0) return 0;
        field->setFocus();
        field->selectAll();
        return 1;
    }
    void Connect(const std::function<void()>& changed) override {
        QObject::connect(m_spin, &CNumberSpin::stepped, m_spin, [changed] { changed(); });
        if (QLineEdit* field = m_spin->GetBuddy())
            QObject::connect(field, &QLineEdit::textEdited, field, [changed] { changed(); });
    }

private:
    QPointer<CNumberSpin> m_spin;
    StoreAddress m_word;
    FieldCheck m_check;
};

class TextBinding : public Binding {
public:
    TextBinding(QLineEdit* edit, StoreAddress text, int32_t maxLength, FieldCheck check)
        : m_edit(edit), m_text(text), m_maxLength(maxLength), m_check(check) {}

    void Show(const StoreValues& values) override {
        m_edit->setText(QString::fromStdString(values.Text(m_text)));
    }
    std::optional<StoreAddress> TextAddress() const override { return m_text; }
    std::string CollectText() const override { return m_edit->text().toStdString(); }
    int32_t Validate(QWidget* owner) const override {
        if (m_check == FieldCheck::kWhenEnabled && !IsEnabledItself(m_edit)) return 0;
        if (ValidateLength(owner, CollectText(), m_maxLength) == 0) return 0;
        m_edit->setFocus();
        return 1;
    }
    void Connect(const std::function<void()>& changed) override {
        QObject::connect(m_edit, &QLineEdit::textEdited, m_edit, [changed] { changed(); });
    }

private:
    QPointer<QLineEdit> m_edit;
    StoreAddress m_text;
    int32_t m_maxLength;
    FieldCheck m_check;
};

}  // namespace

CPageBinder::CPageBinder() = default;

CPageBinder::~CPageBinder() = default;

void CPageBinder::Add(std::unique_ptr<Binding> binding) {
    if (m_changed) binding->Connect(m_changed);
    m_bindings.push_back(std::move(binding));
}

void CPageBinder::Bit(QAbstractButton* box, StoreAddress word, uint32_t bits, BitSense sense,
                      BitShow show) {
    Add(std::make_unique<BitBinding>(box, word, bits, sense, show));
}

void CPageBinder::Check(QAbstractButton* box, StoreAddress word, WordCodec codec) {
    Add(std::make_unique<CheckBinding>(box, word, std::move(codec)));
}

void CPageBinder::Hold(StoreAddress word, uint32_t bits, uint32_t* held) {
    Add(std::make_unique<HeldBinding>(word, bits, held));
}

void CPageBinder::HoldText(StoreAddress text, std::string* held) {
    Add(std::make_unique<HeldTextBinding>(text, held));
}

void CPageBinder::Radios(std::vector<QAbstractButton*> radios, StoreAddress word, WordCodec codec) {
    Add(std::make_unique<RadioBinding>(std::move(radios), word, std::move(codec)));
}

void CPageBinder::Combo(QComboBox* combo, StoreAddress word, WordCodec codec) {
    Add(std::make_unique<ComboBinding>(combo, word, std::move(codec)));
}

void CPageBinder::Number(CNumberSpin* spin, StoreAddress word, int32_t low, int32_t high,
                         FieldCheck check) {
    Add(std::make_unique<NumberBinding>(spin, word, low, high, check));
}

void CPageBinder::Text(QLineEdit* edit, StoreAddress text, int32_t maxLength,
                       FieldCheck check) {
    Add(std::make_unique<TextBinding>(edit, text, maxLength, check));
}

void CPageBinder::Owns(StoreAddress word, uint32_t bits) { m_declared[word] |= bits; }

void CPageBinder::OwnsText(StoreAddress text) { m_declaredTexts.push_back(text); }

void CPageBinder::Rebuilt(StoreAddress word) { m_rebuilt.push_back(word); }

bool CPageBinder::IsRebuilt(StoreAddress word) const {
    return std::find(m_rebuilt.begin(), m_rebuilt.end(), word) != m_rebuilt.end();
}

void CPageBinder::EnableWhen(QAbstractButton* box, std::vector<QWidget*> dependents) {
    EnableRule rule{box, {}};
    for (QWidget* dependent : dependents) rule.dependents.emplace_back(dependent);
    m_enableRules.push_back(std::move(rule));
}

void CPageBinder::Show(const StoreValues& values) const {
    for (const auto& binding : m_bindings) binding->Show(values);
    ApplyEnableRules();
}

void CPageBinder::Save() const {
    // One read and one write per word, in the order the words were first
    // bound; each binding changes only its own bits of what the store holds
    // (of nothing, for a rebuilt word).
    std::vector<StoreAddress> order;
    std::map<StoreAddress, uint32_t> words;
    for (const auto& binding : m_bindings) {
        const std::optional<StoreAddress> address = binding->Word();
        if (!address) continue;
        auto [it, isNew] = words.try_emplace(*address, 0);
        if (isNew) {
            order.push_back(*address);
            if (!IsRebuilt(*address)) it->second = m_home->Word(*address);
        }
        it->second = ReplaceBits(it->second, binding->Collect(it->second), binding->Mask());
    }
    for (const StoreAddress& address : order) m_home->Write(address, words[address]);
    for (const auto& binding : m_bindings) {
        if (const std::optional<StoreAddress> text = binding->TextAddress())
            m_home->WriteText(*text, binding->CollectText());
    }
}

uint32_t CPageBinder::CollectWord(StoreAddress address, uint32_t word) const {
    for (const auto& binding : m_bindings) {
        if (binding->Word() == address)
            word = ReplaceBits(word, binding->Collect(word), binding->Mask());
    }
    return word;
}

void CPageBinder::ShowWord(StoreAddress address, uint32_t word) const {
    const OneWordValues values(*m_home, address, word);
    for (const auto& binding : m_bindings) {
        if (binding->Word() == address) binding->Show(values);
    }
    ApplyEnableRules();
}

int32_t CPageBinder::Validate(QWidget* owner) const {
    for (const auto& binding : m_bindings) {
        if (binding->Validate(owner) != 0) return 1;
    }
    return 0;
}

void CPageBinder::ApplyEnableRules() const {
    for (const EnableRule& rule : m_enableRules) {
        if (!rule.box) continue;
        const bool enable = rule.box->isChecked() && IsEnabledItself(rule.box);
        for (const QPointer<QWidget>& dependent : rule.dependents) {
            if (dependent) dependent->setEnabled(enable);
        }
    }
}

void CPageBinder::OnUserChange(std::function<void()> changed) {
    m_changed = std::move(changed);
    for (const auto& binding : m_bindings) binding->Connect(m_changed);
}

std::map<StoreAddress, uint32_t> CPageBinder::OwnedWords() const {
    std::map<StoreAddress, uint32_t> owned = m_declared;
    for (const auto& binding : m_bindings) {
        if (const std::optional<StoreAddress> address = binding->Word())
            owned[*address] |= binding->Mask();
    }
    for (const StoreAddress& word : m_rebuilt) owned[word] = kWholeWord;
    return owned;
}

std::vector<StoreAddress> CPageBinder::OwnedTexts() const {
    std::vector<StoreAddress> texts = m_declaredTexts;
    for (const auto& binding : m_bindings) {
        if (const std::optional<StoreAddress> text = binding->TextAddress()) texts.push_back(*text);
    }
    return texts;
}
