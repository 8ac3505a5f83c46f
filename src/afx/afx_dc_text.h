// Inside CDC: drawing and measuring texts. No guard: part of a class.
virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
BOOL TextOut(int x, int y, const CString& str) {
    return TextOut(x, y, str, str.GetLength());
}
virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                        LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}
BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}
virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions,
                            int nTabOrigin) {
    return CSize(static_cast<DWORD>(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin)));
}
CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions, int nTabOrigin) {
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}
virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}
int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}
// With DT_MODIFYSTRING the text becomes what is drawn; it has room for four more characters.
virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}
int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
CSize GetTextExtent(const CString& str) const {
    return GetTextExtent(str, str.GetLength());
}
BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const {
    return ::GetTextExtentExPointI(m_hDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}
CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
CSize GetOutputTextExtent(const CString& str) const {
    return GetOutputTextExtent(str, str.GetLength());
}
CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const {
    return CSize(
        static_cast<DWORD>(::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions)));
}
CSize GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const {
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}
CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const {
    return CSize(
        static_cast<DWORD>(::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions)));
}
CSize GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const {
    return GetOutputTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}
BOOL GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const {
    return ::GetTextExtentPointI(m_hDC, pgiIn, cgi, lpSize);
}
virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount, int x,
                        int y, int nWidth, int nHeight) {
    return ::GrayString(m_hDC, BrushOf(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}
UINT SetTextAlign(UINT nFlags) {
    return Both<UINT>(::SetTextAlign, nFlags);
}
UINT GetTextAlign() const {
    return ::GetTextAlign(m_hAttribDC);
}
int GetTextFace(int nCount, LPTSTR lpszFacename) const {
    return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
}
int GetTextFace(CString& rString) const;
BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const {
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
}
BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const {
    return ::GetTextMetrics(m_hDC, lpMetrics);
}
UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const {
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}
int SetTextJustification(int nBreakExtra, int nBreakCount) {
    return Both<int>(::SetTextJustification, nBreakExtra, nBreakCount);
}
int SetTextCharacterExtra(int nCharExtra) {
    return Both<int>(::SetTextCharacterExtra, nCharExtra);
}
int GetTextCharacterExtra() const {
    return ::GetTextCharacterExtra(m_hAttribDC);
}
DWORD SetMapperFlags(DWORD dwFlag) {
    return Both<DWORD>(::SetMapperFlags, dwFlag);
}
BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}
BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth(m_hDC, nFirstChar, nLastChar, lpBuffer);
}
BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const {
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}
// Not rounded.
BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const {
    return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}
BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const {
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}
// By numbers of glyphs: the given ones, or, where pgi is null, cgi of them from giFirst on.
BOOL GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const {
    return ::GetCharWidthI(m_hDC, giFirst, cgi, pgi, lpBuffer);
}
BOOL GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const {
    return ::GetCharABCWidthsI(m_hDC, giFirst, cgi, pgi, lpabc);
}
DWORD GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                            DWORD dwFlags) const {
    return ::GetCharacterPlacement(m_hDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}
DWORD GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const {
    return GetCharacterPlacement(str, str.GetLength(), nMaxExtent, lpResults, dwFlags);
}
// With null only how many pairs there are.
int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const {
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
}
DWORD GetFontLanguageInfo() const {
    return ::GetFontLanguageInfo(m_hDC);
}
CSize GetAspectRatioFilter() const;
DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const {
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}
DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpData,
                      const MAT2* lpmat2) const {
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpData, lpmat2);
}
