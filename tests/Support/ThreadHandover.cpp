// Tells the thread sanitizer what it cannot see: Qt is not built with it, so that neither the lock
// of an event queue nor the end of a thread looks like an order of events to it. The two doors by
// which this project hands something to another thread are opened here by hand; what goes past
// them is still reported. Part of the preset "tsan" only.

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QObject>
#include <QThread>

#include <dlfcn.h>

extern "C" {
void __tsan_acquire(void* address); // NOLINT(bugprone-reserved-identifier)
void __tsan_release(void* address); // NOLINT(bugprone-reserved-identifier)
}

namespace {

/// Qt's own function, behind the one of that name here.
template <class Function>
Function original(const char* mangledName) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, mangledName));
}

/// Called in the receiver's thread before each event is delivered.
bool acquireEvent(void** data) {
    __tsan_acquire(data[0]);
    // What its thread did last is handed over to whoever waits for its end.
    __tsan_release(QThread::currentThread());
    return false;
}

const bool isRegistered =
    QInternal::registerCallback(QInternal::EventNotifyCallback, &acquireEvent);

} // namespace

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* result) {
    using Invoke = bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*);
    static const auto invoke = original<Invoke>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14Connec"
        "tionTypeEPv");
    __tsan_release(object);
    return invoke(object, slot, type, result);
}

bool QThread::wait(QDeadlineTimer deadline) {
    using Wait = bool (*)(QThread*, QDeadlineTimer);
    static const auto waitForEnd = original<Wait>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = waitForEnd(this, deadline);
    __tsan_acquire(this);
    return hasEnded;
}
