#pragma once
// Run-time faults of the engine and the one way they are reported.
//
// Every public routine of the engine catches the faults of its body and reports them, then
// returns its default. The picture stays as far as the routine had got. There are two boxes:
// - the general reporter, which every command, paint, fixing and undo routine uses:
//   "<tag>  [<description>]" (two blanks before the bracket) with the stop icon;
// - the off-screen surface's own box: "<tag> [<description>]" with the exclamation icon.
// `Fault` carries the classic error number as well, for the routines whose message shows the
// number instead.

#include <QString>
#include <exception>
#include <functional>
#include <stdexcept>

namespace tf {

class Fault : public std::runtime_error {
public:
    // The error numbers that the engine raises itself.
    enum Number {
        InvalidCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        FileNotFound = 53,
        FileAlreadyOpen = 55,
        DiskFull = 61,
        PermissionDenied = 70,
        PathFileAccessError = 75,
        PathNotFound = 76,
        InvalidPicture = 481,
    };

    Fault(int number, const QString &description);
    explicit Fault(Number number);

    int number() const { return m_number; }
    QString description() const { return m_description; }

    // The standard description of an error number ("Overflow", "Division by zero" ...).
    static QString describe(int number);

private:
    int m_number;
    QString m_description;
};

// The description of whatever was thrown: a Fault's own, "Out of memory" for bad_alloc,
// what() for other standard exceptions.
QString describeCurrentException(std::exception_ptr e);

enum class FaultBox {
    Reporter, // "<tag>  [<description>]", stop icon
    Surface,  // "<tag> [<description>]", exclamation icon
};

// The text of a fault message in the given box.
QString faultMessage(const QString &tag, const QString &description,
                     FaultBox box = FaultBox::Reporter);
// Reports a fault through the installed prompter (see prompter.h).
void reportFault(const QString &tag, const QString &description, FaultBox box = FaultBox::Reporter);

// Runs `body`; a fault is reported under `tag` and the call answers false.
bool guarded(const QString &tag, const std::function<void()> &body,
             FaultBox box = FaultBox::Reporter);
// The same in the surface's own box.
inline bool guardedSurface(const QString &tag, const std::function<void()> &body)
{
    return guarded(tag, body, FaultBox::Surface);
}

} // namespace tf
