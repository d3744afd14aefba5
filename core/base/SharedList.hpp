#pragma once
// A list value whose copies share their elements until one of them changes. Copying is O(1);
// the first change to a shared copy duplicates only the element pointers, and replacing an
// element allocates only that element. Two lists compare equal element by element, skipping
// elements (or whole lists) that are still shared. This keeps "copy the ledger, change one
// movement, compare with the old one" cheap on ledgers of a hundred thousand movements.
//
// Not synchronised: like any value, one thread changes a given copy; copies may live on
// other threads (the reference counts are atomic).

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace vantello {

template <typename T>
class SharedList {
    using Element = std::shared_ptr<const T>;
    using Storage = std::vector<Element>;

public:
    class const_iterator {
    public:
        using iterator_category = std::random_access_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = const T&;

        const_iterator() = default;
        explicit const_iterator(typename Storage::const_iterator position) : position_(position) {}
        reference operator*() const { return **position_; }
        pointer operator->() const { return position_->get(); }
        reference operator[](difference_type n) const { return *position_[n]; }
        const_iterator& operator++() { ++position_; return *this; }
        const_iterator operator++(int) { auto old = *this; ++position_; return old; }
        const_iterator& operator--() { --position_; return *this; }
        const_iterator operator--(int) { auto old = *this; --position_; return old; }
        const_iterator& operator+=(difference_type n) { position_ += n; return *this; }
        const_iterator& operator-=(difference_type n) { position_ -= n; return *this; }
        friend const_iterator operator+(const_iterator it, difference_type n) { return it += n; }
        friend const_iterator operator+(difference_type n, const_iterator it) { return it += n; }
        friend const_iterator operator-(const_iterator it, difference_type n) { return it -= n; }
        friend difference_type operator-(const const_iterator& a, const const_iterator& b) {
            return a.position_ - b.position_;
        }
        friend bool operator==(const const_iterator& a, const const_iterator& b) = default;
        friend auto operator<=>(const const_iterator& a, const const_iterator& b) {
            return a.position_ <=> b.position_;
        }

    private:
        typename Storage::const_iterator position_;
    };

    SharedList() = default;
    SharedList(std::vector<T> values) {  // NOLINT(google-explicit-constructor)
        auto storage = std::make_shared<Storage>();
        storage->reserve(values.size());
        for (auto& value : values) storage->push_back(std::make_shared<const T>(std::move(value)));
        items_ = std::move(storage);
    }
    SharedList(std::initializer_list<T> values) : SharedList(std::vector<T>(values)) {}

    [[nodiscard]] std::size_t size() const { return items_ ? items_->size() : 0; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] const T& operator[](std::size_t index) const { return *(*items_)[index]; }
    [[nodiscard]] const T& front() const { return (*this)[0]; }
    [[nodiscard]] const T& back() const { return (*this)[size() - 1]; }
    [[nodiscard]] const_iterator begin() const { return const_iterator(storage().begin()); }
    [[nodiscard]] const_iterator end() const { return const_iterator(storage().end()); }

    [[nodiscard]] std::vector<T> toVector() const { return std::vector<T>(begin(), end()); }

    void push_back(T value) { mutableStorage().push_back(std::make_shared<const T>(std::move(value))); }
    void reserve(std::size_t count) { mutableStorage().reserve(count); }
    void set(std::size_t index, T value) {
        mutableStorage()[index] = std::make_shared<const T>(std::move(value));
    }
    // Replaces the element at `index` by a changed copy: `change` receives a T& to edit.
    template <typename Change>
    void update(std::size_t index, Change&& change) {
        T copy = (*this)[index];
        std::forward<Change>(change)(copy);
        set(index, std::move(copy));
    }
    void erase(std::size_t index) {
        auto& items = mutableStorage();
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(index));
    }
    template <typename Predicate>
    std::size_t eraseIf(Predicate&& predicate) {
        if (std::none_of(begin(), end(), predicate)) return 0;
        return std::erase_if(mutableStorage(), [&](const Element& element) { return predicate(*element); });
    }
    // Stable sort of the elements; only pointers move.
    template <typename Less>
    void stableSort(Less&& less) {
        if (std::is_sorted(begin(), end(), less)) return;
        auto& items = mutableStorage();
        std::stable_sort(items.begin(), items.end(),
                         [&](const Element& a, const Element& b) { return less(*a, *b); });
    }

    friend bool operator==(const SharedList& a, const SharedList& b) {
        if (a.items_ == b.items_) return true;
        if (a.size() != b.size()) return false;
        const Storage& left = a.storage();
        const Storage& right = b.storage();
        for (std::size_t i = 0; i < left.size(); ++i) {
            if (left[i] != right[i] && !(*left[i] == *right[i])) return false;
        }
        return true;
    }

private:
    static const Storage& emptyStorage() {
        static const Storage none;
        return none;
    }
    [[nodiscard]] const Storage& storage() const { return items_ ? *items_ : emptyStorage(); }
    Storage& mutableStorage() {
        if (!items_) {
            items_ = std::make_shared<Storage>();
        } else if (items_.use_count() > 1) {
            items_ = std::make_shared<Storage>(*items_);
        }
        // Only this copy holds the storage now, so changing it is invisible to other copies.
        return const_cast<Storage&>(*items_);
    }

    std::shared_ptr<const Storage> items_;
};

}  // namespace vantello
