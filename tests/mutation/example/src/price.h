#pragma once

#define PRICE_OF_NOTHING 0 // a preprocessor line: 0 + 0

/// Cents with tax, which is rounded up.
inline int withTax(int cents, int percent) {
    return cents + (cents * percent + 99) / 100;
}

int total(const int* cents, int count);
