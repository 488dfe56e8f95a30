#pragma once

// The object base with run-time class support, as far as the product uses it.

struct CRuntimeClass {
    const char* m_pszName;
    const CRuntimeClass* m_pBase;

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
};

inline const CRuntimeClass CObject::classCObject{"CObject", nullptr};
