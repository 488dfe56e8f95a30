// SPDX-License-Identifier: MIT
#include "tables/TableLayout.h"

#include <array>

#include "framework/Index.h"

namespace lumerin {

namespace {

constexpr const char* kRatioColumns =
    "  I/J          FAX          F22          F33          M22          M33       TORQUE       D/C";
constexpr const char* kRatioUnitsUs =
    "            (Kips)       (Kips)       (Kips)     (Kip-ft)     (Kip-ft)     (Kip-ft)   (Ratio)";
constexpr const char* kRatioUnitsSi =
    "              (kN)         (kN)         (kN)       (kN-m)       (kN-m)       (kN-m)   (Ratio)";
constexpr const char* kForceColumns =
    "  I/J    MAX/MIN        FAX        F22        F33        M22        M33     TORQUE       D/C";
constexpr const char* kForceUnitsUs =
    "           FORCE     (Kips)     (Kips)     (Kips)   (Kip-ft)   (Kip-ft)   (Kip-ft)   (Ratio)";
constexpr const char* kForceUnitsSi =
    "           FORCE       (kN)       (kN)       (kN)     (kN-m)     (kN-m)     (kN-m)   (Ratio)";

constexpr const char* kPileOpening = " PROP  PILE  ELEM  NODE  ";
constexpr const char* kColmnOpening = " PROP COLMN  ELEM  NODE  ";
constexpr const char* kColumnOpening = " PROP  COLUMN  ELEM  NODE  ";
constexpr const char* kXMemberOpening = " PROP  XMEMBR  ELEM  NODE  ";
constexpr const char* kPileLower = "  NO.   NO.   NO.   NO.  ";
constexpr const char* kColumnLower = "  NO.     NO.   NO.   NO.  ";

constexpr const char* kPileHeading = "Pile Properties Data for Substructure %d";
constexpr const char* kColumnHeading = "Column Properties Data for Substructure %d";
constexpr const char* kBentHeading =
    "Column Properties Data for Substructure %d (Not applicable for Pile Bent)";

constexpr const char* kCapOpening = "    LOCATION  ELEM  PROP       NODE  ";
constexpr const char* kCapLower = "      & SIDE   NO.   NO.        NO.  ";

constexpr TableLayout kMaxAxialLayout{
    .table = kTableMaxAxial,
    .text = {.wide = {false, 41}, .narrow = {true, 13}, .furtherWide = {40, 36}, .furtherNarrow = {20, 16}},
    .pdf = {.wide = {false, 38}, .narrow = {true, 19}, .furtherWide = {37, 32}, .furtherNarrow = {20, 16}},
    .head = {.linesAfter = 0, .linesAfterFirst = 2},
};

constexpr TableLayout kPileDc{
    .table = kTablePileDc,
    .text = {.wide = {false, 36}, .narrow = {true, 21}},
    .pdf = {.wide = {false, 36}, .narrow = {true, 21}},
    .head = {.opening = kPileOpening,
             .openingType8 = kColmnOpening,
             .lowerOpening = kPileLower,
             .columns = kRatioColumns,
             .unitsUs = kRatioUnitsUs,
             .unitsSi = kRatioUnitsSi},
    .member = {.family = kPileFamily,
               .valueGap = "   ",
               .missingRatio = {"     No valid load case", "     No valid load case"},
               .missingIsSentence = true,
               .pierHeading = kPileHeading,
               .pierHeadingType8 = kColumnHeading,
               .gapAfterPier = true},
};

constexpr TableLayout kColumnDc{
    .table = kTableColumnDc,
    .text = {.wide = {false, 36}, .narrow = {true, 21}, .byPierCount = true},
    .pdf = {.wide = {false, 36}, .narrow = {true, 34}},
    // The family word of AREMA is one blank wider here than its column.
    .head = {.opening = kColumnOpening,
             .openingType8 = kColumnOpening,
             .lowerOpening = kColumnLower,
             .columns = kRatioColumns,
             .unitsUs = kRatioUnitsUs,
             .unitsSi = kRatioUnitsSi,
             .aremaWidth = 16},
    .member =
        {.family = kColumnFamily,
         .firstProperty = 2,
         .memberWidth = 7,
         .valueGap = "   ",
         .missingRatio = {" none  ***          ***          ***          ***          ***          ***"
                          "          ***       ***",
                          " none            ***  ***          ***          ***          ***          ***"
                          "          ***          ***       ***"},
         .pierHeading = kColumnHeading,
         .pierHeadingType8 = kColumnHeading,
         .pierHeadingBent = kBentHeading},
    .handOverType8 = kTablePileDc,
};

constexpr TableLayout kCapShear{
    .table = kTableCapShear,
    .text = {.wide = {false, 53}, .narrow = {true, 40}},
    .pdf = {.wide = {false, 53}, .narrow = {true, 50}},
    // Mode 2 reads TIME over STEP here alone.
    .head =
        {.opening = kCapOpening,
         .openingType8 = kCapOpening,
         .lowerOpening = kCapLower,
         .columns = "  I/J         FAX         F22         F33         M22         M33      TORQUE      D/C",
         .unitsUs = "           (Kips)      (Kips)      (Kips)    (Kip-ft)    (Kip-ft)    (Kip-ft)  (Ratio)",
         .unitsSi = "             (kN)        (kN)        (kN)      (kN-M)      (kN-M)      (kN-M)  (Ratio)",
         .mode2IsTimeStep = true},
    .cap =
        {.blockHeading =
             {", Substructure  %i:\nMaximum (+) Shear Forces at the Left and Right of the Bearings "
              "and at the Left Face, Right Face and Centerline of Supports",
              ", Substructure  %i:\nMinimum (-) Shear Forces at the Left and Right of the Bearings "
              "and at the Left Face, Right Face and Centerline of Supports"},
         .values = 7,
         .valueOrder = {kAxial, kF22, kF33, kM22, kM33, kTorque, kDemandCapacity},
         .missing = {" miss   ***        ***   ***  ***         ***         ***         ***         ***"
                     "         ***         ***      ***",
                     " miss   ***        ***   ***            ***  ***         ***         ***         ***"
                     "         ***         ***         ***      ***"},
         .sideMissing = {"  *** none         ***         ***         ***         ***         ***         ***"
                         "      ***",
                         "  ***            *** none         ***         ***         ***         ***"
                         "         ***         ***      ***"},
         .noLoadCase = " none            ***  ***         ***         ***         ***         ***         ***"
                       "         ***      ***"},
};

constexpr TableLayout kCapMoment{
    .table = kTableCapMoment,
    .text = {.wide = {false, 39}, .narrow = {false, 32}},
    .pdf = {.wide = {false, 45}, .narrow = {false, 38}},
    .head = {.opening = kCapOpening,
             .openingType8 = kCapOpening,
             .lowerOpening = kCapLower,
             .columns = "  I/J         FAX         M22         M33      D/C",
             .unitsUs = "           (Kips)    (Kip-ft)    (Kip-ft)  (Ratio)",
             .unitsSi = "             (kN)      (kN-M)      (kN-M)  (Ratio)"},
    .cap = {.blockHeading =
                {", Substructure  %i:\nMaximum (+) Moment Forces at the Bearings and at the Left Face, "
                 "Right Face and Centerline of Supports",
                 ", Substructure  %i:\nMinimum (-) Moment Forces at the Bearings and at the Left Face, "
                 "Right Face and Centerline of Supports"},
            .maximumRemark = "(+M33 = Tension at Bottom)",
            .values = 4,
            .valueOrder = {kAxial, kM22, kM33, kDemandCapacity},
            .missing = {" miss   ***        ***   ***  ***         ***         ***         ***      ***",
                        " miss   ***        ***   ***            ***  ***         ***         ***         ***"
                        "      ***"},
            .noLoadCase = " none            ***  ***         ***         ***         ***      ***"},
};

constexpr TableLayout kPileForces{
    .table = kTablePileForces,
    .text = {.wide = {false, 46}, .narrow = {true, 33}},
    .pdf = {.wide = {false, 46}, .narrow = {true, 33}},
    .head = {.opening = kPileOpening,
             .openingType8 = kColmnOpening,
             .lowerOpening = kPileLower,
             .columns = kForceColumns,
             .unitsUs = kForceUnitsUs,
             .unitsSi = kForceUnitsSi},
    .member = {.family = kPileFamily,
               .forces = true,
               .missing = "  ***   ***   ***   ***",
               .pierHeading = kPileHeading,
               .pierHeadingType8 = kColumnHeading},
};

constexpr TableLayout kColumnForces{
    .table = kTableColumnForces,
    .text = {.wide = {false, 46}, .narrow = {true, 33}, .byPierCount = true},
    .pdf = {.wide = {false, 46}, .narrow = {true, 33}},
    .head = {.opening = kColumnOpening,
             .openingType8 = kColumnOpening,
             .lowerOpening = kColumnLower,
             .columns = kForceColumns,
             .unitsUs = kForceUnitsUs,
             .unitsSi = kForceUnitsSi},
    .member = {.family = kColumnFamily,
               .forces = true,
               .firstProperty = 2,
               .memberWidth = 7,
               .missing = "    ***   ***   ***   ***",
               .pierHeading = kColumnHeading,
               .pierHeadingType8 = kColumnHeading,
               .pierHeadingBent = kBentHeading},
    .handOverType8 = kTablePileForces,
};

constexpr TableLayout kExtraMembers{
    .table = kTableExtraMembers,
    .text = {.wide = {false, 53}, .narrow = {true, 40}},
    .pdf = {.wide = {false, 53}, .narrow = {true, 40}},
    .head = {.opening = kXMemberOpening,
             .openingType8 = kXMemberOpening,
             .lowerOpening = kColumnLower,
             .columns = kForceColumns,
             .unitsUs = kForceUnitsUs,
             .unitsSi = kForceUnitsSi},
    // The member column and its filler are one blank wider than the head.
    .member = {.family = kXMemberFamily,
               .forces = true,
               .sectionByNumber = true,
               .blankBeforeMember = true,
               .memberWidth = 7,
               .missing = "     ***   ***   ***   ***",
               .pierHeading = "Extra Member Properties Data for Substructure %d",
               .pierHeadingType8 = "Extra Member Properties Data for Substructure %d"},
};

constexpr std::array<TableLayout, 8> kLayouts{kMaxAxialLayout, kPileDc,     kColumnDc,     kCapShear,
                                              kCapMoment,      kPileForces, kColumnForces, kExtraMembers};

}  // namespace

const TableLayout& LayoutOf(TableId table) {
    return kLayouts.at(Index(table));
}

}  // namespace lumerin
