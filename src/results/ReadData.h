#pragma once

#include <string_view>

#include "framework/Object.h"
#include "text/KeyedLine.h"

// The keyed text file of the project: the cross-sections of the substructures, the project's texts and the
// location of each substructure. Each reader scans the stream for its section and stops behind the first.
class CReadData : public CObject {
  public:
    void ReadPierSections(ifstreamex& file);
    bool ReadProjectData(ifstreamex& file);
    bool ReadPierData(ifstreamex& file);

  private:
    static bool FindSection(ifstreamex& file, std::string_view keyword);
};
