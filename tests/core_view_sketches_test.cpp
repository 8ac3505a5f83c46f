// Gauges as sketches: a letter for every few pixels, '@' dark to ' ' bright. Texts are their cells.
#include "gauge_scenes.h"
#include "widgets/painting/shape_raster.h"

#include <gmock/gmock.h>

using namespace wnt;

namespace {

std::vector<std::string> sketch(const GaugeModel& model, int width, int height, int cell) {
    const Scene scene(model, width, height);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height));
    ShapeRaster raster;
    raster.begin({pixels.data(), width, height}, {0, 0, width, height}, 4);
    for (const Picture* picture : {&scene.face, &scene.value})
        for (const auto& f : picture->figures())
            if (f.kind == Picture::Kind::polygon)
                raster.polygon(picture->points(f), static_cast<int>(f.count), f.colour);
            else
                raster.box(f.bounds, f.colour);
    raster.finish();
    std::vector<std::string> rows(static_cast<std::size_t>(height / cell));
    for (int row = 0; row < height / cell; ++row)
        for (int column = 0; column < width / cell; ++column) {
            int dark = 255 * cell * cell;
            for (int i = 0; i < cell * cell; ++i)
                dark -= brightness(
                    pixels[static_cast<std::size_t>((row * cell + i / cell) * width + column * cell + i % cell)]);
            int level = 0; // finer where it is bright, as grounds and plates are
            while (level < 15 && 255 * cell * cell * (level + 1) * (level + 1) <= 256 * dark)
                ++level;
            rows[static_cast<std::size_t>(row)] += " ',.:;-=+ox*%#&@"[level];
        }
    return rows;
}

std::string side_by_side(std::initializer_list<int> types, int width, int height, int cell, const Lines& more = {}) {
    std::vector<std::string> all(static_cast<std::size_t>(height / cell), "\n");
    for (const int type : types) {
        GaugeModel model = zoned(type, 75, {":NOTITLE=0", ":TITLE=Flow", ":UNITTITLE=bar", ":CLRTEXT=DARKBLUE"});
        for (const char* line : more)
            model.load_line(line);
        model.set_current_value(130);
        const auto rows = sketch(model, width, height, cell);
        for (std::size_t i = 0; i < rows.size(); ++i)
            all[i] += (type == *types.begin() ? "" : " ") + rows[i];
    }
    std::string text;
    for (const std::string& row : all)
        text += row;
    return text;
}

TEST(GaugeViews, LookLikeTheirSketches) {
    const Lines outlined = {":BARTITLE=X", ":CLEARMARKS", ":SETMARK=90,RED", ":SETMARK=150,WHITE", ":SETMARK=150,RED"};
    const Lines raised = {":BORDERTYPE=3DUP", ":BORDERHEIGHT=3", ":MINVAL=200", ":MAXVAL=-100", ":SCALES=40"};
    const std::initializer_list<int> all = {gauge_percent_bar, gauge_thermometer, gauge_analog,
                                            gauge_digital,     gauge_peak_line,   gauge_turn_knob};
    EXPECT_EQ(side_by_side(all, 228, 228, 12), R"(
.......-ooo-....... .......-ooo-....... .......-ooo-....... .......-ooo-....... .......-ooo-....... .......-ooo-.......
.......+&&&+....... .......+&&&+....... .......+&&&+....... .......+&&&+....... .......+&&&+....... .......+&&&+.......
.......-ooo-....... ......;+ooo-....... .......-oxo-....... :::::::-xxx-::::::. =o-....-ooo-....... .......-ooo-.......
................... ......*&::.o-...... ......--=oo=-:..... :.................. o#x+,,,,,,,,,,,,,,, ........;=;........
...:::#&&%ooo::.... ........::.%+...... ....;=++=ox%*+-.... :.................. ..;o'''''''''''''', .....:%=o&oo#o.....
...:..#@@###%...... ........::.%+...... ...;=o;'+#+'-%+-... :.................. ..;o'''''''''''''', .....:x--o+=o-.....
....,,xxxo;;;,,.... ........:::%+...... ...=+,'';+;';;%+:.. :.::=.*%x:*%x...... ..;o'''''''''''''', ...o%.-+-=o*o.&&...
.:==========;;;;;.. ......;-:=*%+...... ..-+:'''''';='-%=.. ::..%.:.%=x.%...... ..;x:::::::::::::-; ...-+==-++++xx=-...
.;###*xxxxxxo+;;;.. ......*&:=*x-...... ..=x'''''';o'''%+.. :.::x.+o%-o:x...... ;--x'''''''''''''', ....:+-+;;o%o%::;..
.;&&&=     =&#;;;.. ........:=*+;...... .:oo'''''-*,'''xo;. :::.*.=+%-o.*:++++. x&xo,,,,,,,,,,,,,,, ..*#o=+;::x+o*x#&;.
.-@@@=     =&#;;;.. ........:=*+;...... .:o=''''-*=''''+x-. ::..%.:.%=x.%;####. :;;+'''''''''''''', ..;-o=+;::-=+*x:;..
.-@@@=     =&#;;;.. ........:=**=...... .:o+''''=+,''''oo-. :.::-.x%o.*%o:####. ..:+'''''''''''''', ....+++=---=o*o....
.-@@@&&&&&&#--;;;.. .......;:=**=...... ..=*'''':-:''''%+:. :.............====. ..:o'''''''''''''', ..+&-x++===+*%=&#..
.:%%%%ooo%&&&&&&&;. .......*:=*=;...... ..-*:;+'o&o+&x:%=.. :.................. ..;o'''''''''''''', ..:-.o+oo+o**x.==..
.=+==---oxx++++ox+- .........x&=....... ..:+*=+.+o+;==%+-.. :.................. ..;o'''''''''''''', ....=+.;oxx=:+=:...
.*x.....&&&....+&&* ........:#@o....... ...-='..#@#.''==... :+#%%#xox%@&%====;. .+x+,,,,,,,,,,,,,,, ....++.......*&-...
.o+.....*%%....=%%o ......:;-=+::...... ....-;,'-=-'';=.... :ox;;-;:;;--;::%%o. .;;..::xxo--::..... ......:x*x+=.......
................... .....:.x@#%o....... .....;=-:,.-=-..... :++............**+. .....:.@@###:,..... ......:#@#%*.......
................... .......-o+-:....... .......:-=-:....... ................... .......++=::.,..... .......:;:.........)");
    EXPECT_EQ(side_by_side(all, 60, 320, 15, outlined), R"(
.... :xx. .xx. ;**; .xx. .xx.
.... o--. .... &&&# -''' ....
.... +-=. .... &&&# -,,, ....
.... ;:=. .... &&&# -''' ....
.... o==. .... &&&# -,,, ....
.... =-;. .... &&&# -''' ....
.... -;;. .... &&&# ;,,, ....
.... o=;. .... &&&# ;::- ....
;:;; -;;. .... &&&# -,,, ....
x,=x +--. -o+: #%%% ;''' :=-.
+#+: ==+. =.;= &&&% -,,, --=+
+*oo .;+. =+x= &&&# -''' ;++-
---+ ==+. .::. &&&# =,,, ....
.... ==+. .... &&&# +''' ....
.... .;+. .... &&&# +,,, ....
.... ==+. .... &&&# +''' ....
.... :-=. .... &&&# +,,, ....
.... .;:. .... &&&# +''' ....
.... =;-= .... &&&# +,,, ....
.... *  * .... &@x& +''' ....
.... +==+ ;.=: x@oo =.=: ;.=:)");
    EXPECT_EQ(side_by_side(all, 160, 60, 8, raised), R"(
',,,,,,,;oo;,,,,,,,- ',,,,,,,;oo;,,,,,,,- ',,,,,,,;oo;,,,,,,,- ',,,,,,,;oo;,,,,,,,- ',,,,,,,;oo;,,,,,,,- ',,,,,,,;oo;,,,,,,,-
,.......=##=.......= ,.......=##=.......= ,.......=##=.......= ,.......=##=.......= ,.......=##=.......= ,.......=##=.......=
-++++++---------:..= ,...--=............= ,...:=+;...........= o&&&&&&&&%%&%%&&=..= :o,,,,,,,,,,,,,,,,,= ,....;-............=
=oooo&@@&&&%;;;;;==o ,...:-=.:++=-+++;..= ,...+:,+;++=-+++;..= x&&&&&&&&&###&&&+==o .x;;;;;;;;;;;;;;;;;+ ,...=++=:++=-+++;..=
=xxxx&@@&&&%;;;;+&&% ,...-=+.=&&%x**&=..= ,..:=::==&&%x**&=..= x&&&&&&&&&&&%%&&x&&% .*.''''''''''''''''= ,...o;-x=&&%x**&=..=
+****#&****o;;;;-ooo ,...-=o.:==-;===:..= ,...+''=;==-;===:..= x&&&&&&&&&##&&%&oooo :-.....;x++o.......= ,...++o+:==-;===:..=
-ooooo+-==+===+=-..= ,....==............= ,...::::...........= o&######&###%*#&=..= ,......-#xo*.......= ,..................=)");
    EXPECT_EQ(side_by_side(all, 64, 40, 4, outlined), R"(
-;;;;;;;;;------ ......%%%%...... ......%%%%...... ......%%%%...... ......%%%%...... ......%%%%......
;#######o :;;;;: ......&&&&...... ......&&&&...... ......&&&&...... ......&&&&...... ......&&&&......
;@@@@@@@*######: ..=:;.====...... ...::.====...... =ooooo*ox*=-ooo= -;....++++.....: ......====......
;@@@@@@@*@@&&&&: ...;;x.......... .:x+-=:......... *&&&&*&%x%x*%&&x x;'''''''''''''. ..-=-;..........
=@@@@@@@*%*****: ...--+..-------; .x.'':=.-------; *&&&&*&%x%%&%&&x =o=============; .=+=++:.-------;
++++++++++-;;;;: ..---o..;  :oxx= ;o':;'o;;  :oxx= *&&&&*&#*%*&%&&x xo''''''''''''', .o=:=oo.;  :oxx=
x*x**x*+++=+*x*x ...--x..;  ;===; ;o'-:'o;;  ;===; *&&&&*&%x#o*%&&x xx''''''''''''', .o=;-oo.;  ;===;
-:.::.xx*x.::.:- ..=--o..:,,.:::. :x:'';x.:,,.:::. ======****;;===; --....oxxo...... .=+++*;.:,,.:::.
......%&&%...... ...==........... .;:'';;......... ......%&&%...... ......%&&%...... .::-=;..........
......x%%x...... ...==........... ..:;;:.......... ......x%%x...... ......x%%x...... ................)");
}

TEST(GaugeViews, DigitsHaveTheirSegments) {
    GaugeModel model = model_of(gauge_digital, {":MINVAL=-2147483648", ":MAXVAL=2147483647", ":NOTITLE=X"});
    model.set_current_value(-1234567890);
    const auto rows = sketch(model, 330, 80, 4);
    std::string text;
    for (std::size_t i = 3; i < 12; ++i)
        text += '\n' + rows[i];
    EXPECT_EQ(text, R"(
-.:::::...:::;=..x%%%o..+%%%*:.+:::;=.=*%%%:.;*%%%=..=%%%*;.+%%%%=.-*%%%o.:x%%%x:,
-.;...::.;...=%.::...#-.:...*o:#;..o*.%+...;.o*...;..;...xx.#-..+%.*o..:#;o*...%+,
-.;...::.;...=%.::...#-.:...*o:#;..o*.%+...;.o*...;..;...xx.#-..+%.*o..:#;o*...%+,
-.;...::.:...=%.::...#-.:...*o:#;..o*.%+...;.o*...:..:...xx.#-..+%.*o..:#;o*...%+,
-.-%##x...:;;;=.:x##%o..+###*:.+%##*=.-%##%;.;*###+..::;;-;.+%##%=.-*##%o.:=;;;=.,
-.;===;:.::..=%.xx===;..;===*+.:===o*.:-==+%.o*===%-.:...xo.%+==o*.:-===#:+*...*=,
-.;...::.;...=%.xx...;..:...*o.;...o*.:...-#.o*...#=.;...xx.#-..+%.::..:#;o*...%+,
-.;...::.;...=%.xx...;..:...*o.;...o*.:...-#.o*...#=.;...xx.#-..+%.::..:#;o*...%+,
-.:::::..::::-x.+*xxx-..=xxx*-.::::=o.:oxxx*.=*xxx*;.::::+=.*xxx*o.:oxxx*:-*xxx*-,)");
}

// Pixel by pixel.
TEST(GaugeViews, ValuesOnTheirDivisionsStayInside) {
    std::string column;
    for (const std::string& row : sketch(zoned(gauge_peak_line, 200, {":NOTITLE=X"}), 60, 60, 1))
        column += row[30];
    EXPECT_EQ(column, "..-@'''''''''''''''''''-''''''''''''''''''''-'.x@@@@@@@@@'..") << "a peak below the frame";
    EXPECT_EQ(sketch(zoned(gauge_digital, 100, {":NOTITLE=X"}), 100, 60, 1)[44],
              ".x...########.########.########.xxxxxxxx.xxxxxxxx.========.========.========.========.========....'.")
        << "lamps up to it";
}

} // namespace
