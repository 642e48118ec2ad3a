#pragma once

// A process-wide instance made by the host. T's constructor sets m_instance and
// its destructor clears it; nothing here creates an instance lazily.
template <typename T>
class Singleton
{
public:
    virtual ~Singleton() = default;

    static T& getInstance() { return *m_instance; }
    static T* getInstancePtr() { return m_instance; }

protected:
    static T* m_instance;
};

template <typename T>
T* Singleton<T>::m_instance = nullptr;
