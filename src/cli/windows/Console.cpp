// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <memory>
#include <streambuf>

#include "framework/Index.h"
#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"
#include "text/Utf8.h"

#ifndef ENABLE_VIRTUAL_TERMINAL_PROCESSING
#define ENABLE_VIRTUAL_TERMINAL_PROCESSING 0x0004
#endif

// Of the run-time, which parses the wide command line with it. NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" __declspec(dllimport) int __cdecl __wgetmainargs(int*, wchar_t***, wchar_t***, int, int*);
// NOLINTEND(bugprone-reserved-identifier)

namespace lumerin {

namespace console {

namespace {

HANDLE HandleOf(Stream stream) {
    return GetStdHandle(stream == Stream::output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

// Writes to a console by its wide call: the console of older systems loses count of the bytes of UTF-8.
class ConsoleBuffer : public std::streambuf {
  public:
    explicit ConsoleBuffer(HANDLE console) : m_console(console) {}

  protected:
    int_type overflow(int_type c) override {
        if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
        m_text += traits_type::to_char_type(c);
        return m_text.size() < kPiece || sync() == 0 ? c : traits_type::eof();
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override {
        m_text.append(text, Index(count));
        return m_text.size() < kPiece || sync() == 0 ? count : 0;
    }
    // A character that has not come whole stays for the next time.
    int sync() override {
        const std::size_t whole = WholeCharacters(m_text);
        const std::wstring wide = windows::ToWide(std::string_view(m_text).substr(0, whole));
        m_text.erase(0, whole);
        for (std::size_t from = 0; from < wide.size();) {
            DWORD written = 0;
            const auto count = static_cast<DWORD>(std::min(wide.size() - from, kPiece));
            if (!WriteConsoleW(m_console, wide.data() + from, count, &written, nullptr) || written == 0)
                return -1;
            from += written;
        }
        return 0;
    }

  private:
    static constexpr std::size_t kPiece = 4096;
    HANDLE m_console;
    std::string m_text;
};

// A standard stream on a console, with the settings that the console had before.
class ConsoleStream {
  public:
    ConsoleStream(Stream stream, std::ostream& out)
        : m_out(out), m_console(HandleOf(stream)), m_buffer(m_console) {
        GetConsoleMode(m_console, &m_earlier);
        m_takesEscapes = SetConsoleMode(
            m_console, m_earlier | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        m_before = m_out.rdbuf(&m_buffer);
    }
    ConsoleStream(const ConsoleStream&) = delete;
    ConsoleStream& operator=(const ConsoleStream&) = delete;
    ~ConsoleStream() {
        m_out.flush();
        m_out.rdbuf(m_before);
        Restore();
    }
    bool TakesEscapes() const { return m_takesEscapes; }
    void Restore() const { SetConsoleMode(m_console, m_earlier); }

  private:
    std::ostream& m_out;
    HANDLE m_console;
    ConsoleBuffer m_buffer;
    std::streambuf* m_before = nullptr;
    DWORD m_earlier = 0;
    bool m_takesEscapes = false;
};

std::array<std::unique_ptr<ConsoleStream>, 2> g_consoles;

// The system ends the process after it, in a thread of its own.
BOOL WINAPI OnInterrupt(DWORD) {
    for (const auto& stream : g_consoles) {
        if (stream != nullptr) stream->Restore();
    }
    return FALSE;
}

std::unique_ptr<ConsoleStream>& ConsoleOf(Stream stream) {
    return g_consoles.at(static_cast<std::size_t>(stream));
}

}  // namespace

StandardStreams::StandardStreams() {
    // A fault ends the program without a question that nobody at a console answers.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    for (std::FILE* file : {stdin, stdout, stderr}) _setmode(_fileno(file), _O_BINARY);
    if (IsConsole(Stream::output))
        ConsoleOf(Stream::output) = std::make_unique<ConsoleStream>(Stream::output, std::cout);
    if (IsConsole(Stream::error))
        ConsoleOf(Stream::error) = std::make_unique<ConsoleStream>(Stream::error, std::cerr);
    SetConsoleCtrlHandler(OnInterrupt, TRUE);
}

StandardStreams::~StandardStreams() {
    SetConsoleCtrlHandler(OnInterrupt, FALSE);
    // Both can have one console, which has the earlier settings after the first has gone.
    for (auto stream = g_consoles.rbegin(); stream != g_consoles.rend(); ++stream) stream->reset();
}

bool IsConsole(Stream stream) {
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(stream), &mode) != FALSE;
}

bool TakesEscapes(Stream stream) {
    return ConsoleOf(stream) != nullptr && ConsoleOf(stream)->TakesEscapes();
}

std::size_t Width() {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!GetConsoleScreenBufferInfo(HandleOf(Stream::output), &info)) return 0;
    // A character in the last column would move the cursor to the next line, and the line's end to the one
    // after it.
    const int columns = info.srWindow.Right - info.srWindow.Left;
    return columns > 0 ? Index(columns) : 0;
}

std::vector<std::string> CommandLine(int, const char* const*) {
    int count = 0, startInfo = 0;
    wchar_t **words = nullptr, **environment = nullptr;
    // Words with * and ? stay as they are: patterns of cases have them, too.
    std::vector<std::string> line;
    if (__wgetmainargs(&count, &words, &environment, 0, &startInfo) != 0) return line;
    for (int i = 0; i < count; ++i) line.push_back(windows::FromWide(words[i]));
    return line;
}

}  // namespace console

}  // namespace lumerin
