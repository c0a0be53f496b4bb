#include "db/Screens.h"

Screens &screens()
{
    static Screens instance;
    return instance;
}
