#pragma once

#include "framework/win32/Windows32.h"
