# What decides the last bit of a number, for every library and program that computes or prints one. Positions along
# a cap are compared exactly, and the same seed gives the same sample on every processor.
add_library(lumerin-numbers INTERFACE)
# No fused multiply-add, which rounds once where the rules round twice.
target_compile_options(lumerin-numbers INTERFACE -ffp-contract=off)
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    # No intermediate results of 80 bits.
    target_compile_options(lumerin-numbers INTERFACE -msse2 -mfpmath=sse)
endif()
