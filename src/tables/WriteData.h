#pragma once

#include <string>

#include "framework/Object.h"
#include "text/StoredStream.h"

class CPdfWriter;

// The writer of all tables in all formats; one instance lives for one button press. It walks the result
// tables of the data set and goes back to the load cases for the numbers; it computes nothing.
//
// A text writer returns its count of lines, a PDF writer the line count of its last page, a spreadsheet
// writer 1; 0 or less means that nothing was written because the table is not enabled.
class CWriteData : public CObject {
  public:
    // ---- text (tables/)
    int WriteMaxAxialText(StoredStream& out);
    int WritePileDcText(StoredStream& out);
    int WriteColumnDcText(StoredStream& out);
    int WriteCapShearText(StoredStream& out);
    int WriteCapMomentText(StoredStream& out);
    int WritePileForcesText(StoredStream& out);
    int WriteColumnForcesText(StoredStream& out);
    int WriteExtraMemberForcesText(StoredStream& out);
    void WriteTitlePageText(StoredStream& out);

    // ---- PDF (writers/)
    int WriteMaxAxialPdf(StoredStream& out, CPdfWriter& pdf);
    int WritePileDcPdf(StoredStream& out, CPdfWriter& pdf);
    int WriteColumnDcPdf(StoredStream& out, CPdfWriter& pdf);
    int WriteCapShearPdf(StoredStream& out, CPdfWriter& pdf);
    int WriteCapMomentPdf(StoredStream& out, CPdfWriter& pdf);
    int WritePileForcesPdf(StoredStream& out, CPdfWriter& pdf);
    int WriteColumnForcesPdf(StoredStream& out, CPdfWriter& pdf);
    int WriteExtraMemberForcesPdf(StoredStream& out, CPdfWriter& pdf);
    void WriteTitlePagePdf(StoredStream& out);  // a document of its own, closed behind it

    // ---- spreadsheet (writers/); embedded: a part of a workbook that the caller frames
    int WriteMaxAxialSheet(StoredStream& out, bool embedded);
    int WritePileDcSheet(StoredStream& out, bool embedded);
    int WriteColumnDcSheet(StoredStream& out, bool embedded);
    int WriteCapShearSheet(StoredStream& out, bool embedded);
    int WriteCapMomentSheet(StoredStream& out, bool embedded);
    int WritePileForcesSheet(StoredStream& out, bool embedded);
    int WriteColumnForcesSheet(StoredStream& out, bool embedded);
    int WriteExtraMemberForcesSheet(StoredStream& out, bool embedded);
    int WritePileHeadForcesSheet(StoredStream& out, bool embedded);

    // ---- workbook frame (writers/)
    static std::string WorkbookHeader();
    static std::string WorksheetEnd();
    std::string CoordsSheetMoment() const;
    std::string CoordsSheetShear() const;
    void SetStepWords();

    // ---- the data file of the envelope plotter (envelopes/): opens g_OutputFilePath itself
    void WriteEnvelopeFile();

  private:
    void WriteLimitStateStatus(StoredStream& out);
    void WriteShearEnvelopes(StoredStream& out);
    void WriteMomentEnvelopes(StoredStream& out);

    std::string m_sLoadWord[2];  // upper and lower word of the step column's heading
};
