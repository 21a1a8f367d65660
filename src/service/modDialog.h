// Chief header of the routines that choose files. Offered from the top; what stands below includes the single header.
#pragma once

#include "dialogframe/FileChoice.h"
