// Tells ThreadSanitizer how Qt orders threads. Qt's libraries are not built for it, so it sees neither their
// locks nor their queues. Each function here replaces one of Qt's for the callers in our code, calls that,
// and says what it does.
#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <QObject>
#include <cstdarg>

#define REPLACEMENT extern "C" __attribute__((visibility("default")))

namespace {

template <typename Function>
Function* replaced(Function* /*type*/, const char* symbol) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

bool beforeEvent(void** event) {
  __tsan_acquire(event[0]);  // its receiver
  return false;
}
[[maybe_unused]] const bool isCalled =
    QInternal::registerCallback(QInternal::EventNotifyCallback, &beforeEvent);

// A queued functor, with the order of its call and its end. Qt counts the references, and its atomics are not
// seen.
class OrderedSlot final : public QtPrivate::QSlotObjectBase {
 public:
  explicit OrderedSlot(QSlotObjectBase* slot) : QSlotObjectBase(&OrderedSlot::run), m_slot(slot) {
    __tsan_release(this);
  }

 private:
  static void run(int what, QSlotObjectBase* base, QObject* receiver, void** arguments, bool* /*isEqual*/) {
    auto* const self = static_cast<OrderedSlot*>(base);
    __tsan_acquire(self);
    if (what == Call) {
      self->m_slot->call(receiver, arguments);
      __tsan_release(self);
    } else if (what == Destroy) {
      self->m_slot->destroyIfLastRef();
      delete self;
    }
  }

  QSlotObjectBase* const m_slot;
};

}  // namespace

#define POST "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"
REPLACEMENT void post(void* receiver, void* event, int priority) asm(POST);
void post(void* receiver, void* event, int priority) {
  static auto* const original = replaced(post, POST);
  __tsan_release(receiver);
  original(receiver, event, priority);
}

#define INVOKE \
  "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv"
REPLACEMENT bool invoke(void* receiver, QtPrivate::QSlotObjectBase* slot, int type, void* result) asm(INVOKE);
bool invoke(void* receiver, QtPrivate::QSlotObjectBase* slot, int type, void* result) {
  static auto* const original = replaced(invoke, INVOKE);
  auto* const ordered = new OrderedSlot(slot);
  const bool isInvoked = original(receiver, ordered, type, result);
  if (type == Qt::BlockingQueuedConnection) __tsan_acquire(ordered);
  return isInvoked;
}

// A mutex's first try is compiled into its callers and is seen; these are called while another thread has it.
#define LOCK "_ZN11QBasicMutex12lockInternalEv"
REPLACEMENT void lock(void* mutex) asm(LOCK);
void lock(void* mutex) {
  static auto* const original = replaced(lock, LOCK);
  original(mutex);
  __tsan_acquire(mutex);
}

#define UNLOCK "_ZN11QBasicMutex14unlockInternalEv"
REPLACEMENT void unlock(void* mutex) asm(UNLOCK);
void unlock(void* mutex) {
  static auto* const original = replaced(unlock, UNLOCK);
  __tsan_release(mutex);
  original(mutex);
}

#define LOCK_RECURSIVE "_ZN15QRecursiveMutex7tryLockEi"
REPLACEMENT bool lockRecursive(void* mutex, int timeout) asm(LOCK_RECURSIVE);
bool lockRecursive(void* mutex, int timeout) {
  static auto* const original = replaced(lockRecursive, LOCK_RECURSIVE);
  const bool isLocked = original(mutex, timeout);
  if (isLocked) __tsan_acquire(mutex);
  return isLocked;
}

#define UNLOCK_RECURSIVE "_ZN15QRecursiveMutex6unlockEv"
REPLACEMENT void unlockRecursive(void* mutex) asm(UNLOCK_RECURSIVE);
void unlockRecursive(void* mutex) {
  static auto* const original = replaced(unlockRecursive, UNLOCK_RECURSIVE);
  __tsan_release(mutex);
  original(mutex);
}

#define ACQUIRE "_ZN10QSemaphore7acquireEi"
REPLACEMENT void acquire(void* semaphore, int count) asm(ACQUIRE);
void acquire(void* semaphore, int count) {
  static auto* const original = replaced(acquire, ACQUIRE);
  original(semaphore, count);
  __tsan_acquire(semaphore);
}

#define RELEASE "_ZN10QSemaphore7releaseEi"
REPLACEMENT void release(void* semaphore, int count) asm(RELEASE);
void release(void* semaphore, int count) {
  static auto* const original = replaced(release, RELEASE);
  __tsan_release(semaphore);
  original(semaphore, count);
}

extern "C" int __clone(int (*function)(void*), void* stack, int flags, void* argument, ...);

// QProcess starts a program with clone, in this process's memory until the program runs. ThreadSanitizer
// would take that for a fork, and see no locks of this thread any more.
REPLACEMENT int clone(int (*function)(void*), void* stack, int flags, void* argument, ...) {
  va_list more;
  va_start(more, argument);
  auto* const parentId = va_arg(more, void*);
  auto* const threadData = va_arg(more, void*);
  auto* const childId = va_arg(more, void*);
  va_end(more);
  return __clone(function, stack, flags, argument, parentId, threadData, childId);
}
