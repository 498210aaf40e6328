#include "core/fault.h"

#include "core/prompter.h"

#include <new>

namespace tf {

Fault::Fault(int number, const QString &description)
    : std::runtime_error(description.toStdString()), m_number(number),
      m_description(description)
{
}

Fault::Fault(Number number) : Fault(number, describe(number)) {}

QString Fault::describe(int number)
{
    switch (number) {
    case InvalidCall: return QStringLiteral("Invalid procedure call or argument");
    case Overflow: return QStringLiteral("Overflow");
    case OutOfMemory: return QStringLiteral("Out of memory");
    case SubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case DivisionByZero: return QStringLiteral("Division by zero");
    case TypeMismatch: return QStringLiteral("Type mismatch");
    case FileNotFound: return QStringLiteral("File not found");
    case FileAlreadyOpen: return QStringLiteral("File already open");
    case DiskFull: return QStringLiteral("Disk full");
    case PermissionDenied: return QStringLiteral("Permission denied");
    case PathFileAccessError: return QStringLiteral("Path/File access error");
    case PathNotFound: return QStringLiteral("Path not found");
    case InvalidPicture: return QStringLiteral("Invalid picture");
    default: return QStringLiteral("Application-defined or object-defined error");
    }
}

QString describeCurrentException(std::exception_ptr e)
{
    try {
        std::rethrow_exception(e);
    } catch (const Fault &f) {
        return f.description();
    } catch (const std::bad_alloc &) {
        return Fault::describe(Fault::OutOfMemory);
    } catch (const std::exception &x) {
        return QString::fromLocal8Bit(x.what());
    } catch (...) {
        return Fault::describe(0);
    }
}

QString faultMessage(const QString &tag, const QString &description, FaultBox box)
{
    const QLatin1String open(box == FaultBox::Reporter ? "  [" : " [");
    return tag + open + description + QStringLiteral("]");
}

void reportFault(const QString &tag, const QString &description, FaultBox box)
{
    Prompt p;
    p.text = faultMessage(tag, description, box);
    p.buttons = Buttons::Ok;
    p.icon = box == FaultBox::Reporter ? Icon::Critical : Icon::Exclamation;
    currentPrompter().ask(p);
}

bool guarded(const QString &tag, const std::function<void()> &body, FaultBox box)
{
    try {
        body();
        return true;
    } catch (...) {
        reportFault(tag, describeCurrentException(std::current_exception()), box);
        return false;
    }
}

} // namespace tf
