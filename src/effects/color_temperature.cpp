#include "effects/color_temperature.h"

#include "effects/color_filter_effect.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <numbers>

namespace nocturo {

namespace {

using White = std::array<double, 3>;

/// The two channels of a white that are not full, in units of 1e-8.
struct Row {
    std::int32_t first;
    std::int32_t second;
};

constexpr double kStep = 100.0; // kelvin from row to row
constexpr std::size_t kNeutralRow = 55;

// White at 1000 K, 1100 K and so on to 25100 K, as calculated by Ingo Thies in 2013 from black-body
// spectra for the sRGB primaries: green and blue up to 6500 K, red and green above.
constexpr auto kRows = std::to_array<Row>(
    {{18172716, 0},        {25503671, 0},        {30942099, 0},        {35357379, 0},
     {39091524, 0},        {42322816, 0},        {45159884, 0},        {47675916, 0},
     {49923747, 0},        {51943421, 0},        {54360078, 8679949},  {56618736, 14065513},
     {58734976, 18362641}, {60724493, 22137978}, {62600248, 25591950}, {64373109, 28819679},
     {66052319, 31873863}, {67645822, 34786758}, {69160518, 37579588}, {70602449, 40267128},
     {71976951, 42860152}, {73288760, 45366838}, {74542112, 47793608}, {75740814, 50145662},
     {76888303, 52427322}, {77987699, 54642268}, {79041843, 56793692}, {80053332, 58884417},
     {81024551, 60916971}, {81957693, 62893653}, {82854786, 64816570}, {83717703, 66687674},
     {84548188, 68508786}, {85347859, 70281616}, {86118227, 72007777}, {86860704, 73688797},
     {87576611, 75326132}, {88267187, 76921169}, {88933596, 78475236}, {89576933, 79989606},
     {90198230, 81465502}, {90963069, 82838210}, {91710889, 84190889}, {92441842, 85523742},
     {93156127, 86836903}, {93853986, 88130458}, {94535695, 89404470}, {95201559, 90658983},
     {95851906, 91894041}, {96487079, 93109690}, {97107439, 94305985}, {97713351, 95482993},
     {98305189, 96640795}, {98883326, 97779486}, {99448139, 98899179}, {100000000, 100000000},
     {98947904, 99348723}, {97940448, 98722715}, {96975025, 98120637}, {96049223, 97541240},
     {95160805, 96983355}, {94303638, 96443333}, {93480451, 95923080}, {92689056, 95421394},
     {91927697, 94937330}, {91194747, 94470005}, {90488690, 94018594}, {89808115, 93582323},
     {89151710, 93160469}, {88518247, 92752354}, {87906581, 92357340}, {87315640, 91974827},
     {86744421, 91604254}, {86191983, 91245088}, {85657444, 90896831}, {85139976, 90559011},
     {84638799, 90231183}, {84153180, 89912926}, {83682430, 89603843}, {83225897, 89303558},
     {82782969, 89011714}, {82353066, 88727974}, {81935641, 88452017}, {81530175, 88183541},
     {81136180, 87922257}, {80753191, 87667891}, {80380769, 87420182}, {80018497, 87178882},
     {79665980, 86943756}, {79322843, 86714579}, {78988728, 86491137}, {78663296, 86273225},
     {78346225, 86060650}, {78037207, 85853224}, {77735950, 85650771}, {77442176, 85453121},
     {77155617, 85260112}, {76876022, 85071588}, {76603147, 84887402}, {76336762, 84707411},
     {76076645, 84531479}, {75822586, 84359476}, {75574383, 84191277}, {75331843, 84026762},
     {75094780, 83865816}, {74863017, 83708329}, {74636386, 83554194}, {74414722, 83403311},
     {74197871, 83255582}, {73985682, 83110912}, {73778012, 82969211}, {73574723, 82830393},
     {73375683, 82694373}, {73180765, 82561071}, {72989845, 82430410}, {72802807, 82302316},
     {72619537, 82176715}, {72439927, 82053539}, {72263872, 81932722}, {72091270, 81814197},
     {71922025, 81697905}, {71756043, 81583783}, {71593234, 81471775}, {71433510, 81361825},
     {71276788, 81253878}, {71122987, 81147883}, {70972029, 81043789}, {70823838, 80941546},
     {70678342, 80841109}, {70535469, 80742432}, {70395153, 80645469}, {70257327, 80550180},
     {70121928, 80456522}, {69988894, 80364455}, {69858167, 80273941}, {69729688, 80184943},
     {69603402, 80097423}, {69479255, 80011347}, {69357196, 79926681}, {69237173, 79843391},
     {69119138, 79761446}, {69003044, 79680814}, {68888844, 79601466}, {68776494, 79523371},
     {68665951, 79446502}, {68557173, 79370830}, {68450119, 79296330}, {68344751, 79222975},
     {68241029, 79150740}, {68138918, 79079600}, {68038380, 79009531}, {67939381, 78940511},
     {67841888, 78872517}, {67745866, 78805526}, {67651284, 78739518}, {67558112, 78674472},
     {67466317, 78610368}, {67375872, 78547186}, {67286748, 78484907}, {67198916, 78423512},
     {67112350, 78362984}, {67027024, 78303305}, {66942911, 78244457}, {66859988, 78186425},
     {66778228, 78129191}, {66697610, 78072740}, {66618110, 78017057}, {66539706, 77962127},
     {66462376, 77907934}, {66386098, 77854465}, {66310852, 77801705}, {66236618, 77749642},
     {66163375, 77698261}, {66091106, 77647551}, {66019791, 77597498}, {65949412, 77548090},
     {65879952, 77499315}, {65811392, 77451161}, {65743716, 77403618}, {65676908, 77356673},
     {65610952, 77310316}, {65545831, 77264537}, {65481530, 77219324}, {65418036, 77174669},
     {65355332, 77130560}, {65293404, 77086988}, {65232240, 77043944}, {65171824, 77001419},
     {65112144, 76959404}, {65053187, 76917889}, {64994941, 76876866}, {64937392, 76836326},
     {64880528, 76796263}, {64824339, 76756666}, {64768812, 76717529}, {64713935, 76678844},
     {64659699, 76640603}, {64606092, 76602798}, {64553103, 76565424}, {64500722, 76528472},
     {64448939, 76491935}, {64397745, 76455808}, {64347129, 76420082}, {64297081, 76384753},
     {64247594, 76349813}, {64198657, 76315256}, {64150261, 76281076}, {64102399, 76247267},
     {64055061, 76213824}, {64008239, 76180740}, {63961926, 76148010}, {63916112, 76115628},
     {63870790, 76083590}, {63825953, 76051890}, {63781592, 76020522}, {63737701, 75989482},
     {63694273, 75958764}, {63651299, 75928365}, {63608774, 75898278}, {63566691, 75868499},
     {63525042, 75839025}, {63483822, 75809849}, {63443023, 75780969}, {63402641, 75752379},
     {63362667, 75724075}, {63323097, 75696053}, {63283925, 75668310}, {63245144, 75640840},
     {63206749, 75613641}, {63168735, 75586707}, {63131096, 75560036}, {63093826, 75533624},
     {63056920, 75507467}, {63020374, 75481562}, {62984181, 75455904}, {62948337, 75430491},
     {62912838, 75405319}, {62877678, 75380385}, {62842852, 75355685}, {62808356, 75331217},
     {62774186, 75306977}, {62740336, 75282962}});

White white(std::size_t index) {
    const double first = kRows[index].first * 1e-8;
    const double second = kRows[index].second * 1e-8;
    return index <= kNeutralRow ? White{1.0, first, second} : White{first, second, 1.0};
}

White between(const White& low, const White& high, double share) {
    return {std::lerp(low[0], high[0], share), std::lerp(low[1], high[1], share),
            std::lerp(low[2], high[2], share)};
}

/// Grows with the temperature over the whole table.
double coolness(const White& color) {
    return (color[1] + color[2]) / color[0];
}

/// What the color filter makes of white, and thus the share of each channel that it lets pass.
White whiteThrough(const FilterColor& filter) {
    const NDColorFilterEffect effect = NDColorFilterEffect::effect();
    const auto passes = [&](float phase) {
        const double amount = effect.colorAmmountForHue(static_cast<float>(filter.hue), phase);
        return 1.0 - (1.0 - amount) * filter.vividness;
    };
    return {passes(0.0F), passes(1.0F / 3.0F), passes(2.0F / 3.0F)};
}

} // namespace

std::array<double, 3> whiteAtTemperature(double kelvin) {
    const double last = kLowestTemperature + kStep * (kRows.size() - 1);
    const double row = (std::clamp(kelvin, kLowestTemperature, last) - kLowestTemperature) / kStep;
    const auto low = std::min(static_cast<std::size_t>(row), kRows.size() - 2);
    return between(white(low), white(low + 1), row - static_cast<double>(low));
}

FilterColor filterAtTemperature(double kelvin) {
    const double limited = std::clamp(kelvin, kLowestTemperature, kHighestTemperature);
    const White color = whiteAtTemperature(limited);
    const double vividness = 1.0 - std::ranges::min(color);
    if (vividness == 0.0) { // every hue is neutral then; this one continues those below it
        return {filterAtTemperature(kNeutralTemperature - 1.0).hue, 0.0};
    }
    // Green passes by cos(hue - 120) + 0.5 on either side of its own hue, where red (below) and
    // blue (above) pass whole and the third channel not at all.
    const double greenAmount = 1.0 - (1.0 - color[1]) / vividness;
    const double distance = std::acos(greenAmount - 0.5) * 180.0 / std::numbers::pi;
    return {limited <= kNeutralTemperature ? 120.0 - distance : 120.0 + distance, vividness};
}

std::optional<double> temperatureOfFilter(const FilterColor& filter) {
    constexpr double kVisible = 1.0 / 255.0;
    const White color = whiteThrough(filter);
    // Off the table's ends, and where there is no red, the nearest row is compared.
    std::size_t low = 0;
    while (low + 2 < kRows.size() && coolness(white(low + 1)) * color[0] < color[1] + color[2]) {
        ++low;
    }
    const White from = white(low);
    const White to = white(low + 1);
    const double aim = coolness(color);
    const double share = (aim * from[0] - from[1] - from[2]) /
                         (to[1] + to[2] - from[1] - from[2] - aim * (to[0] - from[0]));
    const double kelvin =
        kLowestTemperature + kStep * (static_cast<double>(low) +
                                      (std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0.0));
    const White found = whiteAtTemperature(kelvin);
    const bool close = std::equal(color.begin(), color.end(), found.begin(),
                                  [](double a, double b) { return std::abs(a - b) <= kVisible; });
    return close ? std::optional(std::min(kelvin, kHighestTemperature)) : std::nullopt;
}

} // namespace nocturo
