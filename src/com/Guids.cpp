// The identifiers of the type library, defined once.
#include <initguid.h>

#include <OrvexMapDialogs2.h>
