#include "wizards/core/timer_arithmetic.h"

#include "base/failure.h"
#include "wizards/core/number_text.h"

namespace korvex::wizards {

float oscillatorHz(float megahertz) {
    return toSingle(static_cast<double>(megahertz) * 1e6);
}

OverflowRate overflowRate(float fosc, double divisor, int cycleDivider) {
    const float m = fosc / static_cast<float>(cycleDivider);
    if (divisor == 0) raise(FailureNumber::DivisionByZero);
    OverflowRate rate;
    rate.frequency = toSingle(static_cast<double>(m) / divisor);
    if (rate.frequency == 0) raise(FailureNumber::DivisionByZero);
    rate.periodMs = 1000.0f / rate.frequency;
    return rate;
}

double timer01Divisor(int mode, std::int32_t reload) {
    switch (mode) {
        case 0: return 8192;
        case 1: return 65536;
        case 2: return 256.0 - reload;  // a long field text must not wrap
        default: return 256;
    }
}

BaudSetting timer1Baud(float fosc, double baud, bool doubled) {
    const double factor = doubled ? 2.0 : 1.0;
    BaudSetting setting;
    const double r = 256.0 - (factor * fosc) / (baud * 384.0);
    setting.reload = roundToInt32(r);
    if (setting.reload < 0) setting.reload = 0;
    if (setting.reload > 255) setting.reload = 255;
    const std::int32_t divisor = (256 - setting.reload) * 384;
    setting.actual = factor * fosc / divisor;
    return setting;
}

BaudSetting timer1Baud16(float fosc, double baud, bool doubled) {
    const double factor = doubled ? 2.0 : 1.0;
    BaudSetting setting;
    setting.reload = roundToInt32(65536.0 - factor * fosc / (32.0 * baud));
    if (setting.reload < 0) setting.reload = 0;
    if (setting.reload > 65535) setting.reload = 65535;
    setting.actual = factor * fosc / ((65536.0 - setting.reload) * 32.0);
    return setting;
}

BaudSetting baudGenerator10(double clock, double baud) {
    BaudSetting setting;
    setting.reload = roundToInt32(1024.0 - clock / baud);
    if (setting.reload < 0) setting.reload = 0;
    if (setting.reload > 1024) setting.reload = 1023;
    if (setting.reload == 1024) raise(FailureNumber::DivisionByZero);
    setting.actual = clock / (1024 - setting.reload);
    return setting;
}

BaudSetting timer2Baud(float fosc, double baud) {
    BaudSetting setting;
    setting.reload = roundToInt32(65536.0 - static_cast<double>(fosc) / (baud * 32.0));
    if (setting.reload < 0) setting.reload = 0;
    const std::int64_t divisor = (65536 - std::int64_t{setting.reload}) * 32;
    if (divisor == 0) raise(FailureNumber::DivisionByZero);
    setting.actual = static_cast<double>(fosc) / static_cast<double>(checkedInt32(divisor));
    return setting;
}

std::int32_t timer01ReloadForFrequency(float clockMegahertz, double frequency, int cycleDivider) {
    double q = (static_cast<double>(clockMegahertz) * 1e6 / cycleDivider) / frequency;
    if (q > 256) q = 256;
    return roundToInt32(256 - q);
}

std::int32_t timer2ReloadForFrequency(float fosc, double frequency, Timer2ReloadDivider divider) {
    const double q = static_cast<double>(fosc) / static_cast<int>(divider) / frequency;
    std::int32_t reload = roundToInt32(65536.0 - q);
    if (reload > 65536) reload = 65536;
    return reload;
}

}  // namespace korvex::wizards
