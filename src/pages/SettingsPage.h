#pragma once

// The base of every settings page. A page is a child window made from its
// dialog template and shown inside a shell (the configuration dialog, the
// single-page shell or the wizard). Shells know nothing of options: they
// drive a page only through the operations below.
//
// The protocol a shell keeps:
//   first show  the page table makes the page, sets its flags and creates
//               its window; the page's start-up fills fixed contents and
//               calls Load; the shell calls SetIcons, places and enables it.
//   later show  Load, then show.
//   leaving     Validate; when it answers 0 and IsModified, Save.
//   Default     OnDefault.
//   after commit  Apply, when NeedApply.

#include <QWidget>
#include <cstdint>
#include <string>

#include "framework/DialogControls.h"
#include "session/PageContext.h"

class QLabel;
class ImageList;

class CSettingsPage : public QWidget {
public:
    // The id of the static that covers a page that cannot work.
    static constexpr int kCoverNoticeId = 65535;
    // The message a page sends its shell when the user chose another
    // protection level (the wizard updates its buttons on it).
    static constexpr int kLevelChangedMessage = 0x464;

    explicit CSettingsPage(int templateId);
    ~CSettingsPage() override;

    // The template the page is built from.
    int TemplateId() const { return m_templateId; }

    // Builds the page's window from its template as a child of parent and
    // runs its start-up; false when the template does not exist.
    bool Create(QWidget* parent);

    // Writes the controls to the store; nothing on a covered page, whatever
    // the page's OnSave would do, unless the page saves when covered.
    void Save();

    // Operations a page overrides; the defaults are the ones named.
    virtual void Apply() {}
    virtual void Reserved1() {}
    virtual void SaveScheduleDefaults() {}
    virtual int32_t Validate() { return 0; }
    virtual int32_t OnDefault() { return 1; }
    virtual int32_t CanDefault() { return 1; }
    virtual void Load() {}
    virtual void SetIcons(const ImageList* icons);
    virtual int32_t IsModified() { return m_modified; }

    // Toolkit. Children are walked in creation order. A walk starts at the
    // child with firstId (0: the first child), which is changed only when
    // includeFirst is set, and changes every later child up to and including
    // the one with lastId; a lastId never met (-1) runs to the end.
    void EnableRange(int firstId, int lastId, bool enable, bool includeFirst);
    void ShowRange(int firstId, int lastId, bool show, bool includeFirst);
    // As ShowRange, stopping after count changed children.
    void ShowCount(int firstId, int count, bool show, bool includeFirst);
    void ShowAll(bool show);
    // Moves every child from firstId (included) to lastId by dx, dy.
    void MoveRange(int firstId, int lastId, int dx, int dy);
    // Hides every child and shows text over the page instead.
    void CoverWithNotice(const std::string& text);
    // 1 when the child exists and is neither hidden nor disabled by itself.
    int32_t IsEnabledAndVisible(int id) const;

    uint32_t GetFlags() const { return m_flags; }
    void SetFlags(uint32_t flags) { m_flags = flags; }
    const PageContext& Context() const { return m_context; }
    void SetContext(const PageContext& context) { m_context = context; }
    int32_t NeedApply() const { return m_needApply; }
    int32_t IsCovered() const { return m_covered; }

    // Enter and Escape: a page has no buttons of its own, so both go to the
    // shell, as its default button and as Cancel.
    void OnOK();
    void OnCancel();

protected:
    // Save's work on a page that is not covered.
    virtual void OnSave() {}
    // Whether Save works on a covered page all the same.
    virtual bool SavesWhenCovered() const { return false; }
    // Makes the page's controls; by default from its dialog template by id.
    virtual bool BuildControls();
    // The window's start-up, after the controls exist. Pages fill fixed
    // contents here and end with Load.
    virtual bool OnInitDialog() { return true; }
    // The range handler: the user acted on control id (ids 10 to 65535).
    virtual void OnControlCommand(int /*id*/, ctl::Notification /*code*/) {}

    // Hands message to the dialog that carries the page, at once.
    void SendToShell(int message);

    QWidget* Control(int id) const { return ctl::Find(this, id); }
    int GetCheck(int id) const { return ctl::GetCheck(this, id); }
    void SetCheck(int id, int state) { ctl::SetCheck(this, id, state); }

    void keyPressEvent(QKeyEvent* event) override;

    QLabel* m_coverNotice = nullptr;
    uint32_t m_flags = 0;
    int32_t m_covered = 0;
    int32_t m_modified = 0;
    int32_t m_needApply = 0;
    PageContext m_context;

private:
    template <typename Change>
    void WalkRange(int firstId, int lastId, bool includeFirst, int count, Change change);
    void PostToShell(int id);

    int m_templateId;
};
