// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lumerin {

// The functions that a backend provides for the framework's classes. There are two backends, and a program
// links one: win32/ maps these calls to windows, headless/ keeps each control as plain state and passes
// events to a sink.

class CDialog;
class CWnd;
struct NativeWindow;                 // a window of the platform, or a record of the headless backend
using WindowHandle = NativeWindow*;  // null: no window

enum class MessageIcon { none, exclamation, question, error };
enum class MessageButtons { ok, yesNo };
enum class MessageAnswer { ok, yes, no };

// A moment of the local clock; month and day count from 1, weekday from 0 for Sunday.
struct LocalTime {
    int year = 1970, month = 1, day = 1, weekday = 4;
    int hour = 0, minute = 0, second = 0;
};

namespace backend {

// Called at the start and at the end of each call of the export, on its thread. Between the two, the state of
// the platform that belongs to the host is as the module needs it; after the end it is as it was before.
void EnterCall() noexcept;
void LeaveCall() noexcept;

// Windows and controls.
void SetText(WindowHandle window, const std::string& text);
std::string Text(WindowHandle window);
void Enable(WindowHandle window, bool enabled);
bool IsEnabled(WindowHandle window);
void Show(WindowHandle window, bool visible);
bool IsVisible(WindowHandle window);
void SetChecked(WindowHandle window, bool checked);
bool IsChecked(WindowHandle window);
void SetFocus(WindowHandle window);
// Selection in an edit control, in characters; -1 as the end means the end of the text.
void SelectEditText(WindowHandle window, int start, int end);

void ComboAdd(WindowHandle window, const std::string& entry);
void ComboSelect(WindowHandle window, int index);
int ComboSelection(WindowHandle window);  // -1: none

void SpinSetRange(WindowHandle window, int low, int high);
void SpinSetPosition(WindowHandle window, int position);  // the buddy edit follows, with its change notice
int SpinPosition(WindowHandle window);

// The child of a dialog with that identifier; null when it has none.
WindowHandle Control(WindowHandle dialog, int id);

// Ties the object of a control to its window; a driver of the dialogs finds the grid's object this way.
void AttachObject(WindowHandle window, CWnd& object);

// Runs a dialog modally; returns the result given to EndDialog. -1: the window could not be made.
int RunDialog(CDialog& dialog);
void EndDialog(WindowHandle dialog, int result);

MessageAnswer ShowMessage(const std::string& text, const std::string& title, MessageIcon icon,
                          MessageButtons buttons);

void BeginWaitCursor();
void EndWaitCursor();
int WaitCursorDepth();

}  // namespace backend

// Services of the platform other than windows.
namespace services {

// Starts `file` (the full path of a program, or a document in quotes) by the shell; an empty verb is the
// default one. Returns the shell's code: above 32 is success, the other codes are those of
// the system.
int ShellOpen(const std::string& verb, const std::string& file, const std::string& parameters);

// Starts the program that is registered on the machine under that name ("Excel") with a document in quotes;
// no other program of that name. Returns the shell's code: 2 where none is registered.
int StartProgram(const std::string& program, const std::string& document);

// Full path of the process's program, and of the module that contains this code.
std::string ProgramPath();
std::string ModulePath();

// A setting that a program keeps for the current user, by the program's key and the value's name. False:
// there is no such value, and the argument is unchanged.
bool ReadUserNumber(const char* key, const char* name, int& value);
// A text value is returned only when it fits into `capacity` bytes, the terminating zero included.
bool ReadUserText(const char* key, const char* name, unsigned capacity, std::string& value);

// The local time; with a name, the fixed time in the environment variable of that name, where it is set.
LocalTime Now(const char* fixedTimeVariable = nullptr);

// Reports that a file could not be opened for writing or was not stored completely. The dialogs show no
// message for it; a program without a screen names the file.
void ReportOutputFailed(const std::string& path);

// Sets the application's default printer to landscape or portrait, where it has one.
void SetPrinterLandscape(bool landscape);

// Whether paths are UTF-8 on this platform; otherwise they are bytes of the Western code page, as texts are.
bool PathsAreUtf8();

// Whether `c` separates folders on this platform, and the separator that it writes itself.
bool IsFolderSeparator(char c);
char FolderSeparator();

}  // namespace services

// Sets the application's name, the title of its message boxes; empty until then. The caller keeps the text.
void SetApplicationName(const char* name);

// The message box of the application, with the application's name as its title.
MessageAnswer AfxMessageBox(const std::string& text, MessageIcon icon = MessageIcon::exclamation,
                            MessageButtons buttons = MessageButtons::ok);

class CWaitCursor {
  public:
    CWaitCursor() { backend::BeginWaitCursor(); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    ~CWaitCursor() { backend::EndWaitCursor(); }
};

}  // namespace lumerin
