#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include <GL/gl.h>

#include "page.h"

// What is drawn on bitmaps: lines pixel by pixel at three depths, copies that leave a colour out, colours mapped to a
// palette, and an OpenGL picture.

namespace {

constexpr int picture_width = 240; // rows of whole words at every depth
constexpr int picture_height = 180;
constexpr int columns = 3;
constexpr DWORD sky = 0;

void Fan(CDibFile& picture) {
    for (int i = 0; i <= picture_width; i += 6) {
        picture.SetColor(255, i < picture_width / 2 ? 255 : 0, i % 12 == 0 ? 255 : 0);
        picture.Line(picture_width / 2, 8, i, picture_height + 20);
        picture.Line(0, i * picture_height / picture_width, picture_width / 2, 8);
    }
    picture.SetColor(255, 255, 255);
    for (int x = 0; x < picture_width; ++x)
        picture.SetPixel(x, picture_height / 2 + static_cast<int>(40 * std::sin(x / 12.0)));
}

// A ball of bright greys on nothing.
void Ball(CWntBitmap& ball, int size) {
    ball.Create(size, size);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const double dx = x - size / 2.0, dy = y - size / 2.0;
            if (dx * dx + dy * dy < size * size / 4.0)
                *ball.GetPixelAddress(x, y) =
                    static_cast<BYTE>(240 - 180 * std::hypot(dx + size / 6.0, dy + size / 6.0) / size);
        }
}

void Landscape(CWntBitmap& scene) {
    scene.Create(picture_width, picture_height);
    for (int y = 0; y < picture_height; ++y)
        for (int x = 0; x < picture_width; ++x)
            *scene.GetPixelAddress(x, y) = static_cast<BYTE>(40 + y / 2 + 24 * ((x / 24 + y / 24) % 2));
    CWntBitmap ball;
    for (int i = 0; i < 6; ++i) {
        const int size = 20 + 10 * i;
        Ball(ball, size);
        ball.CopyBits(&scene, 8 + 30 * i, 8 + 14 * i, size, size, 0, 0, sky);
    }
}

void MapToFewColours(CWntBitmap& scene) {
    struct {
        WORD version = 0x300, count = 6;
        PALETTEENTRY entries[6] = {{20, 30, 80, 0},    {60, 90, 110, 0},   {90, 110, 100, 0},
                                   {150, 140, 120, 0}, {200, 190, 150, 0}, {255, 240, 200, 0}};
    } colours;
    CPalette palette;
    palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(&colours));
    scene.MapColorsToPalette(&palette);
}

void DrawScene() {
    ::glViewport(0, 0, picture_width, picture_height);
    ::glClearColor(0.1F, 0.12F, 0.2F, 1);
    ::glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    ::glEnable(GL_DEPTH_TEST);
    ::glRotatef(20, 1, 1, 0);
    for (int i = 0; i < 3; ++i) {
        ::glRotatef(60, 0, 1, 0);
        ::glBegin(GL_TRIANGLES);
        ::glColor3f(0.9F, 0.3F, 0.2F);
        ::glVertex3f(-0.7F, -0.6F, 0);
        ::glColor3f(0.2F, 0.8F, 0.3F);
        ::glVertex3f(0.7F, -0.6F, 0);
        ::glColor3f(0.3F, 0.5F, 1);
        ::glVertex3f(0, 0.8F, 0);
        ::glEnd();
    }
    ::glFinish();
}

bool Render(CDibFile& picture) {
    if (!picture.CreateNew(picture_width, picture_height, 0, 1) || !picture.PrepareOpenGL())
        return false;
    HGLRC context = ::wglCreateContext(picture.GetDC());
    const bool current = context && ::wglMakeCurrent(picture.GetDC(), context);
    if (current)
        DrawScene();
    ::wglMakeCurrent(nullptr, nullptr);
    if (context)
        ::wglDeleteContext(context);
    return current;
}

class CBitmapDrawingPage : public CSurfacePage {
public:
    const char* Title() const override { return "Drawing on bitmaps"; }
    const char* Name() const override { return "bitmap-drawing"; }

protected:
    bool CreateContents() override {
        lines_[0].CreateNewTrueColor(picture_width, picture_height, 30);
        lines_[1].CreateNewHighColor(picture_width, picture_height, 0);
        lines_[2].CreateNew256Color(picture_width, picture_height, 0, 0);
        for (CDibFile& picture : lines_)
            Fan(picture);
        Landscape(scene_);
        Landscape(mapped_);
        MapToFewColours(mapped_);
        rendered_ = Render(opengl_);
        return CSurfacePage::CreateContents();
    }

    void Paint(CWntOut& out) override {
        FillSurface(out, RGB(252, 252, 252));
        constexpr std::array<const char*, 3> depths = {"lines and pixels, 24 bits", "the same, 16 bits",
                                                       "8 bits: the colour is an index"};
        for (int i = 0; i < 3; ++i) {
            const POINT at = Caption(out, i, depths[static_cast<std::size_t>(i)]);
            lines_[static_cast<std::size_t>(i)].DrawRealized(out.dc, at.x, at.y, 0, 0);
        }
        CDC* dc = CDC::FromHandle(out.dc);
        POINT at = Caption(out, 3, "copied without its ground");
        scene_.Draw(dc, at.x, at.y);
        at = Caption(out, 4, "mapped to six colours");
        mapped_.Draw(dc, at.x, at.y);
        at = Caption(out, 5, rendered_ ? "rendered by OpenGL" : "OpenGL is not available");
        if (rendered_)
            opengl_.Draw(out.dc, at.x, at.y, 0, 0);
    }

    // Answers the device position of the cell's picture.
    static POINT Caption(CWntOut& out, int cell, const char* text) {
        const int width = out.xmax / columns;
        const POINT at = {cell % columns * width + std::max((width - picture_width) / 2, 4),
                          30 + cell / columns * (picture_height + 50)};
        out.linecolour(0, 0);
        out.settext(0, 0, 0, 15, 0, 0);
        std::string caption = text;
        out.chars(at.x, out.ymax - at.y + 6, caption.data(), 0);
        return at;
    }

private:
    std::array<CDibFile, 3> lines_;
    CWntBitmap scene_, mapped_;
    CDibFile opengl_;
    bool rendered_ = false;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeBitmapDrawingPage() {
    return std::make_unique<CBitmapDrawingPage>();
}
