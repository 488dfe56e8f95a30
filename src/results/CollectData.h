#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "framework/Object.h"
#include "model/DataSet.h"
#include "results/SeqFile.h"

// The tables of one substructure's read that later readers of the same substructure need; freed behind it.
struct CPierReadState {
    std::vector<CElementRow> elementTable;
    std::vector<std::uint8_t> elementMask;       // 1: that element number (less one) has no row
    std::vector<std::vector<int>> pileSections;  // per pile, the section number of each element
    CDirFile forceFile;                          // opened once for all of its readers
    std::vector<int> pileFlags;                  // one value a pile; carried, not interpreted
};

// The readers of the host's result files, and the collect steps that run one table's searches and checks for
// every substructure. Readers are defined in results/, collect steps in envelopes/.
class CCollectData : public CObject {
  public:
    CCollectData() : m_nUnits(g_DataSet.m_nUnits) {}

    // ---- readers; k is the substructure's index from 0
    bool ReadPierHeader(int k, CPierReadState& state);    // false: nothing converged, the message was shown
    void ReadMemberForces(int k, CPierReadState& state);  // all cases of all members in one pass
    void ReadPileDimensions(int number);                  // number counts from 1
    void ReadBearings(int k);
    void ReadCombinationData(int k);
    static std::string LimitStateName(int code);
    static void FindFirstCases();

    // ---- collect steps, in table order (envelopes/)
    void CollectMaxAxialForces();
    void CollectPileDemandCapacity();
    void CollectColumnDemandCapacity();
    void CollectCapShear();
    void CollectCapMoment();
    void CollectPileForces();
    void CollectColumnForces();
    void CollectExtraMemberForces();

  private:
    // Taken when the object is built, which is before any file of a project is read.
    int m_nUnits;
};
