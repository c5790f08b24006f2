// The class and interface ids of the published headers, defined once for the whole program.
#include <initguid.h>

#include <QPlan.h>
