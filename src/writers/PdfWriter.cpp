// SPDX-License-Identifier: MIT
#include "writers/PdfWriter.h"

#include <algorithm>

#include "text/Format.h"

namespace lumerin {

namespace {

// Header, footer and page number are a tenth of a line from the page's edge and a quarter margin inside.
constexpr float kEdgeLines = 1.1F;
constexpr float kEdgeMargins = 0.25F;
constexpr float kSmaller = 2.0F;  // their font, than the body's

std::string Number(float value) {
    return FormatGeneral(static_cast<double>(value));
}

std::string ObjectHead(int number) {
    return FormatInt(number) + " 0 obj\r\n";
}

}  // namespace

CPdfWriter::CPdfWriter(bool landscape)
    : m_fPageWidth(landscape ? 792.0F : 612.0F), m_fPageHeight(landscape ? 612.0F : 792.0F) {}

void CPdfWriter::WriteHeader(StoredStream& out) {
    out << "%PDF-1.4\r\n";
    m_nPagesObject = m_nNextObject++;
}

int CPdfWriter::LinesPerPage() const {
    return static_cast<int>((m_fPageHeight - 2.5F * m_fMargin) / m_fLeading);
}

void CPdfWriter::BeginPage(StoredStream& out, std::string_view header) {
    m_nContentObject = m_nNextObject++;
    m_nLengthObject = m_nNextObject++;
    out << ObjectHead(m_nContentObject) << "<< /Length " << FormatInt(m_nLengthObject) << " 0 R >>\r\n"
        << "stream\r\n";
    m_nStreamStart = out.Position();
    WriteSmallLine(out, header, m_fPageHeight - m_fLeading * kEdgeLines);
    m_fTextTop = m_fPageHeight - m_fMargin;
    out << "BT\r\n/F0 " << Number(m_fFontSize) << " Tf\r\n"
        << Number(m_fMargin) << " " << Number(m_fTextTop) << " Td\r\n"
        << Number(m_fLeading) << " TL\r\n"
        << Number(m_fHorizScale) << " Tz\r\n";
}

void CPdfWriter::EndPage(StoredStream& out, std::string_view footer) {
    ++m_nPageCount;
    ++m_nNextObject;  // the page number stream's, which waits for the page count
    const int pageObject = m_nNextObject++;
    out << "\r\nET\r\n";
    WriteSmallLine(out, footer, m_fLeading * kEdgeLines);
    const std::int64_t length = out.Position() - m_nStreamStart;
    // The bare line feed is this stream's alone: the page number streams end in \r\n.
    out << "endstream\nendobj\r\n";
    out << ObjectHead(m_nLengthObject) << FormatInt(length) << "\r\nendobj\r\n";
    out << ObjectHead(pageObject) << "<</Type/Page/Parent " << FormatInt(m_nPagesObject) << " 0 R/Contents ["
        << FormatInt(m_nContentObject) << " 0 R " << FormatInt(m_nContentObject + 2)
        << " 0 R]>>\r\nendobj\r\n";
}

void CPdfWriter::WriteSmallLine(StoredStream& out, std::string_view text, float y) const {
    const std::string_view shown = Trim(text);
    if (shown.empty()) return;
    out << "BT\r\n/F1 " << Number(m_fFontSize - kSmaller) << " Tf\r\n"
        << Number(m_fMargin * kEdgeMargins) << " " << Number(y) << " Td\r\n"
        << Number(m_fLeading) << " TL\r\n"
        << "(" << shown << ") Tj"
        << "\r\nET\r\n";
}

void CPdfWriter::Finish(StoredStream& out) {
    const int bodyFont = WriteFont(out, "Courier");
    const int smallFont = WriteFont(out, "Arial");
    for (int page = 1; page <= m_nPageCount; ++page) WritePageNumber(out, page);
    WritePageTree(out, bodyFont, smallFont);
    const int catalog = m_nNextObject++;
    out << ObjectHead(catalog) << "<</Type/Catalog/Pages " << FormatInt(m_nPagesObject)
        << " 0 R>>\r\nendobj\r\n";
    WriteXref(out);
    out << "trailer\r\n<<\r\n/Size " << FormatInt(m_nNextObject) << "\r\n/Root " << FormatInt(catalog)
        << " 0 R\r\n>>startxref\r\n"
        << FormatInt(m_nXrefPosition) << "\r\n%%EOF\r\n";
}

int CPdfWriter::WriteFont(StoredStream& out, std::string_view name) {
    const int font = m_nNextObject++;
    out << ObjectHead(font) << "\r\n<</Type/Font/Subtype/Type1/BaseFont/" << name
        << "/Encoding/WinAnsiEncoding>>\r\nendobj\r\n";
    return font;
}

void CPdfWriter::WritePageNumber(StoredStream& out, int page) const {
    const std::string text = "(Page " + FormatInt(page) + " of " + FormatInt(m_nPageCount) + ") Tj";
    const int length = static_cast<int>(text.size());
    // 38 characters around the text, six of them carriage returns that the store expands: true while x has
    // three digits.
    constexpr int kAround = 44;
    out << ObjectHead(4 * page) << "<< /Length " << FormatInt(length + kAround) << " >>\r\nstream\r\n"
        << "BT\r\n/F1 " << Number(m_fFontSize - kSmaller) << " Tf\r\n"
        << Number(m_fPageWidth - 3.0F * static_cast<float>(length)) << " " << Number(m_fLeading * kEdgeLines)
        << " Td\r\n"
        << Number(m_fLeading) << " TL\r\n"
        << text << "\r\nET\r\n"
        << "endstream\r\nendobj\r\n";
}

void CPdfWriter::WritePageTree(StoredStream& out, int bodyFont, int smallFont) const {
    out << ObjectHead(m_nPagesObject) << "<</Type /Pages /Count " << FormatInt(m_nPageCount)
        << "\r\n/Kids[\r\n";
    for (int page = 1; page <= m_nPageCount; ++page) out << FormatInt(PageObject(page)) << " 0 R \r\n";
    out << "]\r\n/Resources<</ProcSet[/PDF/Text]/Font<</F0 " << FormatInt(bodyFont) << " 0 R/F1 "
        << FormatInt(smallFont) << " 0 R>> >>\r\n"
        << "\r\n/MediaBox [ 0 0 " << Number(m_fPageWidth) << " " << Number(m_fPageHeight) << " ]\r\n"
        << ">>\r\n endobj\r\n";
}

// Viewers rebuild the table, so an entry has the object's own number in place of an offset, and the position
// at the end of the file is that after the keyword.
void CPdfWriter::WriteXref(StoredStream& out) {
    out << "\nxref\n";
    m_nXrefPosition = out.Position();
    out << "0 " << FormatInt(m_nPagesObject) << " \n0000000000 65535 f \n";
    for (int object = 1; object < m_nNextObject; ++object) out << FormatInt(object) << " 00000 n \r\n";
}

}  // namespace lumerin
