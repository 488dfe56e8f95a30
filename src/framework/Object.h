// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace lumerin {

// The object base with run-time class support, as far as the product uses it.

class CObject;

struct CRuntimeClass {
    const char* m_pszName = "";
    const CRuntimeClass* m_pBase = nullptr;
    std::unique_ptr<CObject> (*m_pfnCreate)() = nullptr;  // null: objects are not made by their class

    bool IsDerivedFrom(const CRuntimeClass& base) const {
        for (const CRuntimeClass* at = this; at != nullptr; at = at->m_pBase) {
            if (at == &base) return true;
        }
        return false;
    }
};

class CObject {
  public:
    static const CRuntimeClass classCObject;

    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    virtual const CRuntimeClass& GetRuntimeClass() const { return classCObject; }
    bool IsKindOf(const CRuntimeClass& base) const { return GetRuntimeClass().IsDerivedFrom(base); }

  protected:
    // A class whose objects are plain values may move them.
    CObject(CObject&&) noexcept {}
    CObject& operator=(CObject&&) noexcept { return *this; }
};

inline const CRuntimeClass CObject::classCObject{"CObject", nullptr};

}  // namespace lumerin
