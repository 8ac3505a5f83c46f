// What the drawing-support library is asked for; the test says what it answers.
extern "C" {

__declspec(dllexport) int percentage = 0;

__declspec(dllexport) int GetMainframeScalePercentage() {
    return percentage;
}
}
