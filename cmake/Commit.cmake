# cmake -DSOURCE=FOLDER -DFILE=Commit.cpp -P cmake/Commit.cmake: writes the source that knows the commit of the sources, if
# it differs from the one that is there. A tarball has the commit in its file COMMIT, a checkout asks git; elsewhere it is
# not known and empty.
file(STRINGS ${SOURCE}/COMMIT commit LIMIT_COUNT 1)
if(NOT commit MATCHES "^[0-9a-f]+$")
    set(commit "")
    find_program(GIT git)
    if(GIT AND EXISTS ${SOURCE}/.git)
        execute_process(COMMAND ${GIT} -C ${SOURCE} rev-parse HEAD OUTPUT_VARIABLE commit
            OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    endif()
endif()
string(SUBSTRING "${commit}" 0 12 commit)
set(text "// SPDX-License-Identifier: MIT
// Made by cmake/Commit.cmake.
#include \"cli/Commit.h\"

namespace lumerin {

std::string_view Commit() {
    return \"${commit}\";
}

}  // namespace lumerin
")
file(CONFIGURE OUTPUT ${FILE} CONTENT "${text}" @ONLY)
