// The keyed text file, by one of its three readers; the project behind it is loaded once.

#include "fuzz/Playground.h"
#include "model/DataSet.h"
#include "results/ReadData.h"
#include "session/Session.h"

namespace {

bool LoadOnce() {
    TheFolder().WriteArchive(SampleArchive("pier"));
    g_InputFilePath = TheFolder().Base() + ".in";
    DerivePaths();
    g_DataSet.Reset();
    return g_DataSet.LoadProject();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool loaded = LoadOnce();
    if (!loaded) return -1;
    TheFolder().Write(".MIS", Text(data, size));
    ifstreamex file(TheFolder().Base() + ".MIS");
    CReadData().FUZZ_READER(file);
    return 0;
}
