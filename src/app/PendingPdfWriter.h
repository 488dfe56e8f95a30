#pragma once
// Stands in until writers/PdfWriter.h is there.
#include <string>
#include "text/StoredStream.h"
class CPdfWriter {
  public:
    explicit CPdfWriter(bool) {}
    void WriteHeader(StoredStream&) {}
    void Finish(StoredStream&) {}
};
