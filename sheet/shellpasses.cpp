#include "sheet/shellpasses.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vorlane {

namespace {

// Where a row stands at a moment of the sort.
struct Placed {
    uint32_t Position;
    int32_t Row;
};

// The rows in order of their keys, each with its position. A pass of the sort with a gap puts each chain of rows that
// are a gap apart in order, and keeps the order of equal ones: an insertion sort. So when the rows are taken in order
// of their keys, and those of equal keys in order of their positions, each goes to the next free position of its chain.
class Passes {
public:
    explicit Passes(KeyOrder keys);

    void Run(size_t gap);
    std::vector<int32_t> Rows() const;

private:
    void SortTies();
    void DealTies();

    std::vector<Placed> rows_;
    std::vector<KeyOrder::Run> ties_;
    std::vector<uint32_t> free_;  // next free position of each chain
    // Of many rows in long runs of equal keys: where in rows_ the run of each place begins, the same by position with
    // the row that stands there, and how far each run has been dealt out, at the place of its begin.
    std::vector<uint32_t> begins_;
    std::vector<Placed> positions_;
    std::vector<uint32_t> dealt_;
};

Passes::Passes(KeyOrder keys) : ties_(std::move(keys.Ties)) {
    const size_t count = keys.Rows.size();
    rows_.reserve(count);
    for (const int32_t row : keys.Rows) rows_.push_back({static_cast<uint32_t>(row), row});
    constexpr size_t longRun = 8;
    size_t inLongRuns = 0;
    for (const auto& [begin, end] : ties_) inLongRuns += end - begin > longRun ? end - begin : 0;
    if (inLongRuns < count / 8) return;
    begins_.resize(count);
    std::iota(begins_.begin(), begins_.end(), 0U);
    for (const auto& [begin, end] : ties_) {
        std::fill_n(begins_.begin() + static_cast<std::ptrdiff_t>(begin), end - begin, static_cast<uint32_t>(begin));
    }
    positions_.resize(count);
    dealt_.resize(count);
}

void Passes::Run(size_t gap) {
    const auto step = static_cast<uint32_t>(gap);
    free_.resize(gap);
    std::iota(free_.begin(), free_.end(), 0U);
    for (Placed& row : rows_) {
        uint32_t& next = free_[row.Position % step];
        row.Position = next;
        next += step;
    }
    if (begins_.empty()) {
        SortTies();
    } else {
        DealTies();
    }
}

void Passes::SortTies() {
    const auto at = [&](size_t i) { return rows_.begin() + static_cast<std::ptrdiff_t>(i); };
    for (const auto& [begin, end] : ties_) {
        std::sort(at(begin), at(end), [](const Placed& a, const Placed& b) { return a.Position < b.Position; });
    }
}

// The same in two walks, whatever the runs.
void Passes::DealTies() {
    for (size_t i = 0; i < rows_.size(); ++i) positions_[rows_[i].Position] = {begins_[i], rows_[i].Row};
    dealt_ = begins_;
    for (uint32_t position = 0; position < positions_.size(); ++position) {
        const auto& [begin, row] = positions_[position];
        rows_[dealt_[begin]++] = {position, row};
    }
}

std::vector<int32_t> Passes::Rows() const {
    std::vector<int32_t> rows;
    rows.reserve(rows_.size());
    for (const Placed& row : rows_) rows.push_back(row.Row);
    return rows;
}

}  // namespace

std::vector<int32_t> ShellOrder(KeyOrder keys) {
    const size_t count = keys.Rows.size();
    if (keys.Ties.empty() || std::is_sorted(keys.Rows.begin(), keys.Rows.end())) return std::move(keys.Rows);
    Passes passes(std::move(keys));
    for (size_t gap = count / 2; gap > 1; gap /= 2) passes.Run(gap);
    // The last pass has one chain, and its order is that of the keys.
    return passes.Rows();
}

std::vector<int32_t> ShellOrderOfRanks(std::span<const int32_t> ranks, int32_t initialRank) {
    std::vector<std::pair<int32_t, int32_t>> rows;  // rank, row
    rows.reserve(ranks.size());
    for (const int32_t rank : ranks) rows.emplace_back(rank, static_cast<int32_t>(rows.size()));
    int32_t upper = initialRank;
    int32_t lower = initialRank;
    const auto swaps = [&](auto& above, auto& below) {
        if (above.first != kNoRank) upper = above.first;
        if (below.first != kNoRank) lower = below.first;
        if (upper <= lower) return false;
        std::swap(above, below);
        return true;
    };
    for (size_t gap = rows.size() / 2; gap > 0; gap /= 2) {
        for (size_t i = gap; i < rows.size(); ++i) {
            for (size_t j = i; j >= gap && swaps(rows[j - gap], rows[j]); j -= gap) continue;
        }
    }
    std::vector<int32_t> order;
    order.reserve(rows.size());
    for (const auto& row : rows) order.push_back(row.second);
    return order;
}

}  // namespace vorlane
