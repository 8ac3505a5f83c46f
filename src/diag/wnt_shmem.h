#pragma once

#include <afxwin.h>

#include <cstdint>

#include "zopwnt_api.h"

/// A named block of memory that processes share, with an in-place pass that scrambles it.
///
///     CWntShMem block("Readings", 4096);
///     if (auto* readings = static_cast<Reading*>(block.GetPtr()))
///         ...
///
/// Nothing is locked: whoever shares the block agrees on who may touch it, and nobody reads while it is scrambled.
/// They agree on its size too: the system rounds blocks up to whole pages, so a differing size is refused only where
/// it asks for more pages, and each scrambles as many bytes as it asked for.
class ZOPWNT_API CWntShMem {
public:
    /// Creates the block, or opens it where another object or process has it; a new one holds zeros. A size below 1,
    /// a block that is smaller, or a name that belongs to something else: there is no memory. Nothing is reported.
    CWntShMem(const char* name, std::int32_t size);
    /// Gives up this object's share; the block goes with the last one.
    ~CWntShMem();
    CWntShMem(const CWntShMem&) = delete;
    CWntShMem& operator=(const CWntShMem&) = delete;

    /// The `size` bytes, as long as the object lives; null where there are none.
    void* GetPtr() const { return view_; }
    /// Scrambles all bytes; the next call, in whichever process, restores them.
    void Scramble();

private:
    CString name_;
    HANDLE mapping_ = nullptr;
    void* view_ = nullptr;
    std::int32_t size_;
};
