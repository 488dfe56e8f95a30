// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "framework/Dialog.h"
#include "framework/Keys.h"
#include "framework/MouseAction.h"
#include "framework/headless/GraphPeer.h"
#include "framework/headless/GridPeer.h"

namespace lumerin {

// The backend without a screen. A window is a record of its state, and all effects outside the process
// (message boxes, starts of other programs) go to a sink. A program without a screen and the tests install
// the sink and the driver that presses the dialogs' buttons.

struct NativeWindow {
    const ControlSpec* spec = nullptr;  // null: the dialog itself
    NativeWindow* parent = nullptr;
    CWnd* object = nullptr;      // the object that the dialog bound to the control, if any
    GridPeer* grid = nullptr;    // of a grid control
    GraphPeer* graph = nullptr;  // of a graph control
    std::string text;
    bool enabled = true, visible = true, checked = false;
    std::vector<std::string> entries;  // of a combo box
    int selection = -1;
    int spinLow = 0, spinHigh = 100, spinPosition = 0;
    int selectionStart = 0, selectionEnd = 0;  // of an edit control
    // Of a dialog alone.
    CDialog* dialog = nullptr;
    NativeWindow* owner = nullptr;                        // the dialog that opened this one
    std::vector<std::unique_ptr<NativeWindow>> controls;  // in resource order
    NativeWindow* focus = nullptr;
    bool ended = false;
    int result = IDCANCEL;
};

namespace headless {

// A dialog as its user sees it. Each action returns false when it is refused: no such control, or a disabled
// or hidden one.
class HeadlessDialog {
  public:
    explicit HeadlessDialog(NativeWindow& window) : m_window(window) {}

    CDialog& Dialog() { return *m_window.dialog; }
    const std::string& Title() const { return m_window.text; }
    int ResourceId() const { return m_window.dialog->Spec().id; }
    bool IsOpen() const { return !m_window.ended; }
    const std::vector<std::unique_ptr<NativeWindow>>& Controls() const { return m_window.controls; }
    NativeWindow* Find(int id) const;
    // The first control of that kind; null when there is none.
    NativeWindow* FindKind(ControlKind kind) const;

    bool Click(int id);
    bool TypeText(int id, const std::string& text);
    bool Focus(int id);
    bool SelectEntry(int id, int entry);
    bool Spin(int id, bool up);
    // Puts the grid's focus on the cell, types the text and Return.
    bool TypeCell(int row, int column, const std::string& text);
    // The mouse on the grid and beside it.
    bool Mouse(const MouseAction& action);
    // A click on the graph at that place of its x axis.
    bool ClickGraph(double x);
    bool PressEscape();
    bool PressReturn();
    bool PressHelp(int id);
    // The keyboard: a key or a typed character goes to the control that has the focus (Keyboard.cpp).
    const NativeWindow* Focused() const { return m_window.focus; }
    bool PressKey(unsigned key, KeyState keys);
    bool TypeChar(unsigned character);
    // Runs an action of a control with its own behaviour; failures are reported as in the message dispatch.
    void Run(const std::function<void()>& step);
    // Ends the dialog as a user would: by its button "Close", else by Cancel.
    void Close();

  private:
    bool PressKeyInEdit(NativeWindow& edit, unsigned key, KeyState keys);
    bool PressKeyInCombo(NativeWindow& combo, unsigned key);
    void EndTips();
    NativeWindow* FindUsable(int id) const;
    NativeWindow& m_window;
};

struct Message {
    std::string text, title;
    MessageIcon icon = MessageIcon::none;
    MessageButtons buttons = MessageButtons::ok;
};

// Receives all effects outside the process. The base class accepts everything silently: questions get
// State().answer, starts of programs State().shellCode.
class Sink {
  public:
    Sink() = default;
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;
    virtual ~Sink() = default;

    virtual void OnDialogOpened(HeadlessDialog&) {}  // after the dialog's initialisation
    virtual MessageAnswer OnMessage(const Message& message);
    virtual int OnShellOpen(const std::string& verb, const std::string& file, const std::string& parameters);
    virtual void OnPrinterOrientation(bool /*landscape*/) {}
    virtual void OnOutputFailed(const std::string& /*path*/) {}
};

// Moves the focus of the window's dialog to the next or previous control that Tab stops at.
void MoveFocusByTab(WindowHandle window, bool backwards);

// Presses the buttons of a dialog that was just opened. A dialog that is still open when this returns is
// closed. A dialog that is opened by a press calls the driver again, inside the press.
using ModalDriver = std::function<void(HeadlessDialog&)>;
void SetModalDriver(ModalDriver driver);

// Null removes the sink. The caller owns the sink and keeps it alive while it is installed.
void SetSink(Sink* sink);
// The installed sink, or one that accepts everything silently.
Sink& CurrentSink();

struct Settings {
    MessageAnswer answer = MessageAnswer::yes;  // to the next questions
    int shellCode = 42;                         // any code above 32 is success
    std::optional<LocalTime> clock;             // unset: a fixed time of the environment, else the machine's
    // The current user's settings, by key and name; absent by default.
    std::map<std::string, std::map<std::string, int>> userNumbers;
    std::map<std::string, std::map<std::string, std::string>> userTexts;
    std::string clipboard;
    std::string programPath, modulePath;  // empty: the program that runs
    ModalDriver driver;
    Sink* sink = nullptr;
    int waitCursorDepth = 0;
};
Settings& State();
// Resets all settings to their initial values and removes sink and driver.
void ResetState();

// A sink that keeps what it received, for tests.
class RecordingSink : public Sink {
  public:
    struct ShellStart {
        std::string verb, file, parameters;
    };

    void OnDialogOpened(HeadlessDialog& dialog) override { dialogs.push_back(dialog.Title()); }
    MessageAnswer OnMessage(const Message& message) override;
    int OnShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) override;
    void OnPrinterOrientation(bool landscape) override { orientations.push_back(landscape); }

    std::vector<std::string> dialogs;
    std::vector<Message> messages;
    std::vector<ShellStart> starts;
    std::vector<bool> orientations;
};

}  // namespace headless

}  // namespace lumerin
