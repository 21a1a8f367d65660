// Chief header of the routines that dialogs share: help, focus mark, select-all, point in rectangle, and one routine
// for each dialog that another one opens. For use from the top; the folders below include the single headers.
#pragma once

#include "dialogframe/FocusMark.h"
#include "dialogframe/Help.h"
#include "dialogframe/PixelEdges.h"
#include "dialogframe/SelectAllText.h"
#include "openers/DataFile.h"
#include "openers/SecondaryDialogs.h"
