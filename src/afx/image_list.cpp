#include "afxcmn.h"
#include "control_images.h"
#include "handle_map.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CImageList, CObject)

inline bool is_alive(HIMAGELIST) {
    return true; // a list cannot be asked
}

namespace {

auto& image_lists() {
    return of_this_thread<handle_map<CImageList, &CImageList::m_hImageList>>();
}

// The archive as the platform's stream, as far as image lists use one.
class archive_stream : public IStream {
public:
    explicit archive_stream(CArchive& ar) : m_ar(ar) {}
    virtual ~archive_stream() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE Read(void* bytes, ULONG count, ULONG* read) override {
        return guarded([&] {
            const UINT got = m_ar.Read(bytes, count);
            if (read != nullptr)
                *read = got;
        });
    }
    HRESULT STDMETHODCALLTYPE Write(const void* bytes, ULONG count, ULONG* written) override {
        return guarded([&] {
            m_ar.Write(bytes, count);
            if (written != nullptr)
                *written = count;
        });
    }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER distance, DWORD origin, ULARGE_INTEGER* position) override {
        return guarded([&] {
            m_ar.Flush();
            const ULONGLONG reached = m_ar.GetFile()->Seek(distance.QuadPart, origin);
            if (position != nullptr)
                position->QuadPart = reached;
        });
    }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }

private:
    // An exception must not leave through the platform.
    template <class Work> HRESULT guarded(Work work) {
        try {
            work();
            return S_OK;
        } catch (CException* e) {
            e->Delete();
            return E_FAIL;
        }
    }
    CArchive& m_ar;
};

} // namespace

void delete_temporary_image_lists() {
    image_lists().delete_temporary();
}

void release_image_list(CWnd& control, int kind, UINT get, UINT set) {
    const auto list = reinterpret_cast<HIMAGELIST>(control.SendMessage(get, static_cast<WPARAM>(kind)));
    if (list != nullptr && CImageList::FromHandlePermanent(list) != nullptr)
        control.SendMessage(set, static_cast<WPARAM>(kind), 0);
}

CImageList::~CImageList() {
    DeleteImageList();
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return image_lists().any(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return image_lists().permanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap() {
    image_lists().delete_temporary();
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    return image_lists().attach(this, hImageList);
}

BOOL CImageList::AttachNew(HIMAGELIST hImageList) {
    if (Attach(hImageList))
        return TRUE;
    if (hImageList != nullptr)
        ImageList_Destroy(hImageList);
    return FALSE;
}

HIMAGELIST CImageList::Detach() {
    return image_lists().detach(this);
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    ::InitCommonControls();
    return AttachNew(ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    ::InitCommonControls();
    const HINSTANCE module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return AttachNew(ImageList_LoadBitmap(module, lpszBitmapID, cx, nGrow, crMask));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy) {
    return AttachNew(ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList) {
    return AttachNew(ImageList_Duplicate(pImageList->GetSafeHandle()));
}

BOOL CImageList::DeleteImageList() {
    const HIMAGELIST handle = m_hImageList != nullptr ? Detach() : nullptr;
    return handle != nullptr && ImageList_Destroy(handle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp) {
    pimldp->cbSize = sizeof(*pimldp);
    pimldp->himl = m_hImageList;
    return ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle, DWORD dwRop,
                              COLORREF rgbBack, COLORREF rgbFore, DWORD fState, DWORD Frame, COLORREF crEffect) {
    IMAGELISTDRAWPARAMS drawing{};
    drawing.i = nImage;
    drawing.hdcDst = pDC->GetSafeHdc();
    drawing.x = pt.x;
    drawing.y = pt.y;
    drawing.cx = sz.cx;
    drawing.cy = sz.cy;
    drawing.xBitmap = ptOrigin.x;
    drawing.yBitmap = ptOrigin.y;
    drawing.rgbBk = rgbBack;
    drawing.rgbFg = rgbFore;
    drawing.fStyle = fStyle;
    drawing.dwRop = dwRop;
    drawing.fState = fState;
    drawing.Frame = Frame;
    drawing.crEffect = crEffect;
    return DrawIndirect(&drawing);
}

BOOL CImageList::Read(CArchive* pArchive) {
    archive_stream stream(*pArchive);
    return AttachNew(ImageList_Read(&stream));
}

BOOL CImageList::Write(CArchive* pArchive) {
    archive_stream stream(*pArchive);
    return ImageList_Write(m_hImageList, &stream);
}
