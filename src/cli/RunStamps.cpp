// SPDX-License-Identifier: MIT
#include "cli/RunStamps.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <stdexcept>

#include "export/ByteSink.h"
#include "export/TableWriter.h"
#include "framework/File.h"
#include "framework/FolderNames.h"
#include "framework/NativePath.h"
#include "records/Table.h"
#include "text/Paths.h"

namespace lumerin {

namespace {

constexpr std::string_view kKind = "lumerin stamps 1";
constexpr char kBetween = '\t';
constexpr std::size_t kSumDigits = 16;

// FNV-1a of 64 bits: it finds damage and change, and is no protection against malice.
std::string SumOf(std::string_view bytes) {
    std::uint64_t sum = 0xcbf29ce484222325U;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        sum *= 0x100000001b3U;
    }
    std::array<char, kSumDigits> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), sum, 16).ptr;
    const std::string text(digits.data(), end);
    return std::string(kSumDigits - text.size(), '0') + text;
}

// A field may hold any bytes; a line and its fields end at bytes that no field has.
std::string Escaped(std::string_view text) {
    std::string field;
    for (const char c : text) {
        if (c == '\\') field += "\\\\";
        if (c == '\t') field += "\\t";
        if (c == '\n') field += "\\n";
        if (c != '\\' && c != '\t' && c != '\n') field += c;
    }
    return field;
}

std::string Unescaped(std::string_view field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\' || i + 1 == field.size()) {
            text += field[i];
            continue;
        }
        const char c = field[++i];
        text += c == 't' ? '\t' : c == 'n' ? '\n' : c;
    }
    return text;
}

std::vector<std::string> FieldsOf(std::string_view line) {
    std::vector<std::string> fields;
    while (true) {
        const std::size_t end = line.find(kBetween);
        fields.push_back(Unescaped(line.substr(0, end)));
        if (end == std::string_view::npos) return fields;
        line.remove_prefix(end + 1);
    }
}

// With its checksum in front and its end.
std::string LineOf(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) {
        if (!line.empty()) line += kBetween;
        line += Escaped(field);
    }
    return SumOf(line) + kBetween + line + '\n';
}

// The line without its checksum; none: the checksum is wrong.
std::optional<std::string_view> Checked(std::string_view line) {
    if (line.size() <= kSumDigits || line[kSumDigits] != kBetween) return std::nullopt;
    const std::string_view rest = line.substr(kSumDigits + 1);
    if (SumOf(rest) != line.substr(0, kSumDigits)) return std::nullopt;
    return rest;
}

std::string LengthAndTime(const std::string& path) {
    const FileStamp stamp = StampOf(path);
    return std::to_string(stamp.length) + ' ' + std::to_string(stamp.modified);
}

// The fields of a project's line before those of its files, two for each.
enum Field : std::size_t { kProject, kInputs, kStatus, kOutput, kFiles };

}  // namespace

std::string InputStamp(const ProjectName& project) {
    const std::string folder = FolderOf(project.basePath);
    std::string text;
    for (const std::string& name :
         EntriesStartingWith(folder, project.basePath.substr(folder.size()) + '.')) {
        text += name + kBetween + LengthAndTime(folder + name) + '\n';
    }
    return SumOf(text);
}

RunStamps::RunStamps(std::string file, const std::string& options)
    : m_file(std::move(file)),
      m_head(LineOf(
          {std::string(kKind), std::string(ProgramVersion()), std::to_string(kTablesVersion), options})) {
    try {
        if (!ReadLines(m_head)) {
            m_places.clear();
            m_lines = 0;
            FileSink sink(m_file);
            sink.Write(m_head);
            sink.Commit();
            m_length = static_cast<std::int64_t>(m_head.size());
        }
    } catch (const ExportError& fault) {
        throw std::invalid_argument(std::string("--resume keeps its stamps in a file: ") + fault.what());
    }
    // What a run that was ended has left of a line.
    std::error_code fault;
    std::filesystem::resize_file(NativePath(m_file), static_cast<std::uintmax_t>(m_length), fault);
    m_stream.open(NativePath(m_file), std::ios::in | std::ios::out | std::ios::binary);
    if (!m_stream) throw std::invalid_argument("the stamps of --resume cannot be written: " + m_file);
    if (fault) m_fault = NotStored();
}

// False: the file is not one that can be used.
bool RunStamps::ReadLines(const std::string& head) {
    std::ifstream file(NativePath(m_file), std::ios::binary);
    std::string line;
    if (!std::getline(file, line) || file.eof() || line + '\n' != head) return false;
    m_length = static_cast<std::int64_t>(head.size());
    while (std::getline(file, line)) {
        if (file.eof()) break;  // without its end: the run was ended while it wrote
        const std::optional<std::string_view> rest = Checked(line);
        if (!rest) return false;
        const Place place{m_length, static_cast<std::int64_t>(line.size())};
        m_places[Unescaped(rest->substr(0, rest->find(kBetween)))] = place;
        m_length += place.length + 1;
        ++m_lines;
    }
    return true;
}

std::string RunStamps::LineAt(const Place& place) const {
    std::string line(static_cast<std::size_t>(place.length), '\0');
    m_stream.clear();
    m_stream.seekg(place.offset);
    m_stream.read(line.data(), static_cast<std::streamsize>(line.size()));
    return m_stream ? line : std::string();
}

std::optional<ProjectOutcome> RunStamps::Earlier(const ProjectName& project,
                                                 const std::string& inputs) const {
    std::string line;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_places.find(project.basePath);
        if (found == m_places.end()) return std::nullopt;
        line = LineAt(found->second);
    }
    const std::optional<std::string_view> rest = Checked(line);
    if (!rest) return std::nullopt;
    const std::vector<std::string> fields = FieldsOf(*rest);
    if (fields.size() < kFiles || fields[kInputs] != inputs) return std::nullopt;
    ProjectOutcome outcome;
    outcome.output = fields[kOutput];
    for (const ExitStatus status : kWorstFirst) {
        if (fields[kStatus] == std::to_string(status)) outcome.status = status;
    }
    for (std::size_t i = kFiles; i + 1 < fields.size(); i += 2) {
        if (LengthAndTime(fields[i]) != fields[i + 1]) return std::nullopt;
        outcome.files.push_back(fields[i]);
    }
    return outcome;
}

void RunStamps::Add(const ProjectName& project, const std::string& inputs, const ProjectOutcome& outcome) {
    if (outcome.status == kExitUsage || outcome.status == kExitNotLoaded) return;
    std::vector<std::string> fields{project.basePath, inputs, std::to_string(outcome.status), outcome.output};
    for (const std::string& file : outcome.files) {
        fields.push_back(file);
        fields.push_back(LengthAndTime(file));
    }
    Append(LineOf(fields), project.basePath);
}

void RunStamps::Append(const std::string& line, const std::string& project) {
    const std::lock_guard lock(m_mutex);
    if (!m_fault.empty()) return;
    m_stream.clear();
    m_stream.seekp(m_length);
    m_stream << line << std::flush;
    if (!m_stream) {
        m_fault = NotStored();
        return;
    }
    m_places[project] = {m_length, static_cast<std::int64_t>(line.size()) - 1};
    m_length += static_cast<std::int64_t>(line.size());
    ++m_lines;
}

std::string RunStamps::Close() {
    if (!m_fault.empty() || m_lines == m_places.size()) return m_fault;
    try {
        FileSink sink(m_file);
        sink.Write(m_head);
        for (const auto& [project, place] : m_places) {
            const std::string line = LineAt(place);
            if (line.empty()) return "the stamps of --resume could not be read: " + m_file;
            sink.Write(line + '\n');
        }
        sink.Commit();
    } catch (const ExportError& fault) {
        return fault.what();
    }
    return {};
}

std::string GivenOptions(const CommandParser& command) {
    std::string text = command.Name();
    for (const GivenOption& option : command.Given()) {
        if (option.name == "--files-from" || option.name == "--resume" || option.name == "--jobs") continue;
        text += ' ' + option.name;
        for (const std::string& value : option.values) text += '=' + value;
    }
    return text;
}

void AddResumeOption(CommandParser& command, bool& resume, const char* needs) {
    command.AddFlag(
        "--resume", resume,
        std::string("Skip projects that an earlier run with --resume and the same options has done, and "
                    "whose files are unchanged; their results are kept (needs ") +
            needs + ")");
}

}  // namespace lumerin
