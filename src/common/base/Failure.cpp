#include "common/base/Failure.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"

#include <QCoreApplication>

#include <new>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Failure)
};

constexpr int OutOfMemory = 7;
constexpr int InternalError = 51;

} // namespace

void reportCurrentException(const char *context)
{
    try {
        throw;
    } catch (const Failure &failure) {
        gSys.SetError(failure.number(), failure.source(), failure.description());
    } catch (const std::bad_alloc &) {
        gSys.SetError(OutOfMemory, app::title(), Words::tr("Out of memory"));
    } catch (const std::exception &error) {
        gSys.SetError(InternalError, app::title(), QString::fromLocal8Bit(error.what()));
    } catch (...) {
        gSys.SetError(InternalError, app::title(), Words::tr("Internal error"));
    }
    gSys.ShowError(QLatin1String(context));
}
