#include "forms/Subscription.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"

bool isActiveUntil(const QString &dateTerminated)
{
    return !clsSystem::IsDate(dateTerminated) ||
           clsSystem::Str2Date(dateTerminated) >= host().now().date();
}
