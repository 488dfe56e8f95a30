// SPDX-License-Identifier: MIT
#include "writers/PdfWriter.h"

#include <gtest/gtest.h>

#include <string>

#include "support/ScratchFolder.h"
#include "writers/PdfFile.h"

namespace lumerin {

class PdfWriter : public ::testing::Test {
  protected:
    // A document of pages that show one line each.
    PdfFile Write(bool landscape, int pages, const std::string& header, const std::string& footer) const {
        StoredStream out(scratch.PathOf("pages.pdf"));
        CPdfWriter pdf(landscape);
        pdf.WriteHeader(out);
        for (int page = 0; page < pages; ++page) {
            pdf.BeginPage(out, header);
            out << "(x)'";
            pdf.EndPage(out, footer);
        }
        pdf.Finish(out);
        out.Close();
        EXPECT_EQ(pdf.PageCount(), pages);
        return PdfFile(scratch.Read("pages.pdf"));
    }
    // The text as the store keeps it.
    static std::string Stored(const std::string& text) {
        std::string stored;
        for (const char c : text) stored += c == '\n' ? std::string("\r\n") : std::string(1, c);
        return stored;
    }

    const ScratchFolder scratch;
};

TEST_F(PdfWriter, OnePageInFull) {
    const PdfFile file = Write(true, 1, " Head\t", "Foot ");
    const std::string upToXref = Stored(
        "%PDF-1.4\r\n"
        "2 0 obj\r\n<< /Length 3 0 R >>\r\nstream\r\n"
        "BT\r\n/F1 7 Tf\r\n7.5 601 Td\r\n10 TL\r\n(Head) Tj\r\nET\r\n"
        "BT\r\n/F0 9 Tf\r\n30 582 Td\r\n10 TL\r\n90 Tz\r\n"
        "(x)'"
        "\r\nET\r\n"
        "BT\r\n/F1 7 Tf\r\n7.5 11 Td\r\n10 TL\r\n(Foot) Tj\r\nET\r\n"
        "endstream\nendobj\r\n"
        // 44 for the body's start, 4 for the line, 8 for its end, 54 for the header and 53 for the footer.
        "3 0 obj\r\n163\r\nendobj\r\n"
        "5 0 obj\r\n<</Type/Page/Parent 1 0 R/Contents [2 0 R 4 0 R]>>\r\nendobj\r\n"
        "6 0 obj\r\n\r\n<</Type/Font/Subtype/Type1/BaseFont/Courier/Encoding/WinAnsiEncoding>>\r\nendobj\r\n"
        "7 0 obj\r\n\r\n<</Type/Font/Subtype/Type1/BaseFont/Arial/Encoding/WinAnsiEncoding>>\r\nendobj\r\n"
        "4 0 obj\r\n<< /Length 60 >>\r\nstream\r\n"
        "BT\r\n/F1 7 Tf\r\n744 11 Td\r\n10 TL\r\n(Page 1 of 1) Tj\r\nET\r\nendstream\r\nendobj\r\n"
        "1 0 obj\r\n<</Type /Pages /Count 1\r\n/Kids[\r\n5 0 R \r\n]\r\n"
        "/Resources<</ProcSet[/PDF/Text]/Font<</F0 6 0 R/F1 7 0 R>> >>\r\n"
        "\r\n/MediaBox [ 0 0 792 612 ]\r\n>>\r\n endobj\r\n"
        "8 0 obj\r\n<</Type/Catalog/Pages 1 0 R>>\r\nendobj\r\n"
        "\nxref\n");
    const std::string after = Stored(
        "0 1 \n0000000000 65535 f \n"
        "1 00000 n \r\n2 00000 n \r\n3 00000 n \r\n4 00000 n \r\n5 00000 n \r\n6 00000 n \r\n7 00000 n \r\n"
        "8 00000 n \r\n"
        "trailer\r\n<<\r\n/Size 9\r\n/Root 8 0 R\r\n>>startxref\r\n" +
        std::to_string(upToXref.size()) + "\r\n%%EOF\r\n");
    EXPECT_EQ(file.Bytes(), upToXref + after);
}

TEST_F(PdfWriter, LinesPerPageFollowThePaper) {
    EXPECT_EQ(CPdfWriter(false).LinesPerPage(), 71);
    EXPECT_EQ(CPdfWriter(true).LinesPerPage(), 53);
}

TEST_F(PdfWriter, AnEmptyHeaderAndABlankFooterWriteNoLine) {
    const PdfFile file = Write(false, 1, "", " \t ");
    EXPECT_EQ(file.pages.at(0).content,
              Stored("BT\r\n/F0 9 Tf\r\n30 762 Td\r\n10 TL\r\n90 Tz\r\n(x)'\r\nET\r\n"));
    EXPECT_EQ(file.pages.at(0).declaredLength, 44 + 4 + 8);
}

TEST_F(PdfWriter, EachPageHasItsFourObjectsAndEveryLengthIsTheStoredOne) {
    constexpr int kPages = 12;
    const PdfFile file = Write(true, kPages, "", "footer");
    ASSERT_EQ(file.pages.size(), static_cast<std::size_t>(kPages));
    for (int page = 1; page <= kPages; ++page) {
        const PdfPage& read = file.pages[static_cast<std::size_t>(page - 1)];
        EXPECT_EQ(static_cast<std::size_t>(read.declaredLength), read.content.size());
        const std::string contents =
            "[" + std::to_string(4 * page - 2) + " 0 R " + std::to_string(4 * page) + " 0 R]";
        EXPECT_NE(file.Object(4 * page + 1).find(contents), std::string::npos) << page;
        const std::string number = file.Object(4 * page);
        const std::string length = "<< /Length " + std::to_string(file.Stream(4 * page).size()) + " >>";
        EXPECT_EQ(number.substr(0, length.size()), length);
    }
    EXPECT_NE(file.Object(4 * kPages + 2).find("/BaseFont/Courier/"), std::string::npos);
    EXPECT_NE(file.Object(4 * kPages + 3).find("/BaseFont/Arial/"), std::string::npos);
    EXPECT_NE(file.Object(4 * kPages + 4).find("/Type/Catalog"), std::string::npos);
    EXPECT_EQ(file.NumberAfter("/Size "), 4 * kPages + 5);
    EXPECT_EQ(file.NumberAfter("/Root "), 4 * kPages + 4);
    EXPECT_EQ(file.NumberAfter("/Count "), kPages);
}

TEST_F(PdfWriter, PageNumbersMoveLeftAsTheirTextGrows) {
    const PdfFile file = Write(false, 10, "", "");
    // 17 and 18 characters with the operator, three points each.
    EXPECT_NE(file.Stream(4 * 9).find("\n561 11 Td\r\r\n10 TL\r\r\n(Page 9 of 10) Tj"), std::string::npos);
    EXPECT_NE(file.Stream(4 * 10).find("\n558 11 Td\r\r\n10 TL\r\r\n(Page 10 of 10) Tj"), std::string::npos);
    EXPECT_NE(file.Object(4 * 9).find("/Length 61 "), std::string::npos);
    EXPECT_NE(file.Object(4 * 10).find("/Length 62 "), std::string::npos);
}

TEST_F(PdfWriter, StartxrefPointsAfterTheKeyword) {
    const PdfFile file = Write(true, 3, "", "f");
    const long position = file.NumberAfter("startxref\r\r\n");
    ASSERT_GT(position, 8);
    const auto at = static_cast<std::size_t>(position);
    EXPECT_EQ(file.Bytes().substr(at - 8, 8), "\r\nxref\r\n");
    EXPECT_EQ(file.Bytes().substr(at, 6), "0 1 \r\n");
}

TEST_F(PdfWriter, ADocumentWithoutPagesIsStillClosed) {
    const PdfFile file = Write(true, 0, "", "");
    EXPECT_TRUE(file.pages.empty());
    EXPECT_EQ(file.NumberAfter("/Count "), 0);
    EXPECT_NE(file.Bytes().find(Stored("/Kids[\r\n]\r\n/Resources")), std::string::npos);
    EXPECT_EQ(file.NumberAfter("/Size "), 5);
}

TEST_F(PdfWriter, TextGoesOutUnescaped) {
    const PdfFile file = Write(true, 1, "", "a(b\\c");
    EXPECT_EQ(file.pages.at(0).footer, "a(b\\c");
}

}  // namespace lumerin
