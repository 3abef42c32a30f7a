// Tells whether an object is still what it was when a call to the host, or a message to the user, returns.
//
// Both let the host go on, which may close the view, load another definition or disconnect in the midst of
// them; what they destroy then is on the stack of whoever called. User-interface thread only.
#pragma once

#include <utility>

namespace pvw {

// Lives on the stack, so watches end in the reverse order of their beginning. The object calls OnGone as it
// is destroyed, and whenever those in the midst of it have to stop.
template <typename T>
class Watch {
 public:
  explicit Watch(const T* object) : m_pObject(object), m_pNext(std::exchange(s_pFirst, this)) {}
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch() { s_pFirst = m_pNext; }

  bool Stands() const { return m_pObject != nullptr; }

  static void OnGone(const T* object) {
    for (Watch* watch = s_pFirst; watch != nullptr; watch = watch->m_pNext) {
      if (watch->m_pObject == object) watch->m_pObject = nullptr;
    }
  }

 private:
  static inline Watch* s_pFirst = nullptr;
  const T* m_pObject;
  Watch* const m_pNext;
};

}  // namespace pvw
