// Bounded tables: an index outside the declared bounds is the program's run-time error.
#pragma once

#include <array>
#include <cstddef>

#include "engine/base/runtimeerror.h"

namespace vernacle {

// A table with the indices 0 to Last.
template <typename T, int Last>
class Table {
public:
    T& operator[](int index) { return entries_[Checked(index)]; }
    const T& operator[](int index) const { return entries_[Checked(index)]; }

    void fill(const T& value) { entries_.fill(value); }

private:
    static std::size_t Checked(int index) {
        if (index < 0 || index > Last) {
            ThrowSubscriptOutOfRange();
        }
        return static_cast<std::size_t>(index);
    }

    std::array<T, Last + 1> entries_{};
};

// A table over scale and tic, read as table[scale][tic]. The scales of one tic lie side by side.
template <typename T, int LastScale, int LastTic>
class TicTable {
public:
    // The tics of one scale; those of a constant table are constant.
    template <typename Owner>
    class RowOf {
    public:
        RowOf(Owner& table, int scale) : table_(table), scale_(scale) {}
        auto& operator[](int tic) const { return table_.tics_[tic][scale_]; }

    private:
        Owner& table_;
        int scale_;
    };
    using Row = RowOf<TicTable>;
    using ConstantRow = RowOf<const TicTable>;

    Row operator[](int scale) { return Row(*this, scale); }
    ConstantRow operator[](int scale) const { return ConstantRow(*this, scale); }

private:
    Table<Table<T, LastScale>, LastTic> tics_;
};

} // namespace vernacle
