#pragma once
// The application's wait pointer for the lifetime of a scope; nests.
#include <QGuiApplication>

class ScopedWaitCursor {
public:
    ScopedWaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~ScopedWaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    ScopedWaitCursor(const ScopedWaitCursor&) = delete;
    ScopedWaitCursor& operator=(const ScopedWaitCursor&) = delete;
};
