// SPDX-License-Identifier: MIT
#pragma once

#include "framework/FolderNames.h"

namespace lumerin {

// Names in a folder without regard to the case of the letters A to Z. A folder of thousands of projects is
// listed once and then only when it has changed; without that, a batch over such a folder would list all of
// it for every file that a project does not have. May be called in several threads.

// The entry of `folder` whose name differs from `name` in case alone; of several the first in byte order, so
// that the choice does not depend on the file system's order. Empty: there is none. An empty folder is the
// current one.
std::string EntryAnyCase(const std::string& folder, const std::string& name);

}  // namespace lumerin
