// Chief header of the routines that choose files, for use from the top. The folders below include the single header.
#pragma once

#include "dialogframe/FileChoice.h"
