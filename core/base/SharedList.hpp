#pragma once
// A list value whose copies share their elements until one of them changes. The elements sit
// in chunks of a few hundred; copying a list is O(1), and the first change to a shared copy
// duplicates only the chunk pointers and the one chunk it touches. Two lists compare equal
// element by element, skipping chunks (or whole lists) that are still shared. This keeps
// "copy the ledger, change one movement, compare with the old one" cheap on ledgers of a
// hundred thousand movements.
//
// Not synchronised: like any value, one thread changes a given copy; copies may live on
// other threads (the reference counts are atomic).

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace vantello {

template <typename T>
class SharedList {
    static constexpr std::size_t chunkCapacity = 256;
    using Chunk = std::vector<T>;
    using ChunkPointer = std::shared_ptr<const Chunk>;

    struct Storage {
        std::vector<ChunkPointer> chunks;
        std::vector<std::size_t> starts;  // index of each chunk's first element
        std::size_t size = 0;
    };

public:
    class const_iterator {
    public:
        using iterator_category = std::random_access_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = const T&;

        const_iterator() = default;
        const_iterator(const Storage* storage, std::size_t index) : storage_(storage) { seek(index); }

        reference operator*() const { return (*storage_->chunks[chunk_])[offset_]; }
        pointer operator->() const { return &**this; }
        reference operator[](difference_type n) const { return *(*this + n); }
        const_iterator& operator++() {
            ++index_;
            if (++offset_ == storage_->chunks[chunk_]->size()) {
                ++chunk_;
                offset_ = 0;
            }
            return *this;
        }
        const_iterator operator++(int) { auto old = *this; ++*this; return old; }
        const_iterator& operator--() { seek(index_ - 1); return *this; }
        const_iterator operator--(int) { auto old = *this; --*this; return old; }
        const_iterator& operator+=(difference_type n) { seek(index_ + n); return *this; }
        const_iterator& operator-=(difference_type n) { seek(index_ - n); return *this; }
        friend const_iterator operator+(const_iterator it, difference_type n) { return it += n; }
        friend const_iterator operator+(difference_type n, const_iterator it) { return it += n; }
        friend const_iterator operator-(const_iterator it, difference_type n) { return it -= n; }
        friend difference_type operator-(const const_iterator& a, const const_iterator& b) {
            return static_cast<difference_type>(a.index_) - static_cast<difference_type>(b.index_);
        }
        friend bool operator==(const const_iterator& a, const const_iterator& b) { return a.index_ == b.index_; }
        friend auto operator<=>(const const_iterator& a, const const_iterator& b) { return a.index_ <=> b.index_; }

    private:
        void seek(std::size_t index) {
            index_ = index;
            chunk_ = storage_ ? SharedList::chunkOf(*storage_, index) : 0;
            offset_ = storage_ && chunk_ < storage_->chunks.size() ? index - storage_->starts[chunk_] : 0;
        }

        const Storage* storage_ = nullptr;
        std::size_t index_ = 0;
        std::size_t chunk_ = 0;
        std::size_t offset_ = 0;
    };

    SharedList() = default;
    SharedList(std::vector<T> values) { assign(std::move(values)); }  // NOLINT(google-explicit-constructor)
    SharedList(std::initializer_list<T> values) : SharedList(std::vector<T>(values)) {}

    [[nodiscard]] std::size_t size() const { return storage_ ? storage_->size : 0; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] const T& operator[](std::size_t index) const {
        const std::size_t chunk = chunkOf(*storage_, index);
        return (*storage_->chunks[chunk])[index - storage_->starts[chunk]];
    }
    [[nodiscard]] const T& front() const { return (*this)[0]; }
    [[nodiscard]] const T& back() const { return (*this)[size() - 1]; }
    [[nodiscard]] const_iterator begin() const { return const_iterator(storage_.get(), 0); }
    [[nodiscard]] const_iterator end() const { return const_iterator(storage_.get(), size()); }

    [[nodiscard]] std::vector<T> toVector() const { return std::vector<T>(begin(), end()); }

    void reserve(std::size_t) {}  // chunks grow by themselves; kept for vector-like callers

    void push_back(T value) {
        Storage& storage = mutableStorage();
        if (storage.chunks.empty() || storage.chunks.back()->size() >= chunkCapacity) {
            auto chunk = std::make_shared<Chunk>();
            chunk->reserve(chunkCapacity);
            storage.chunks.push_back(std::move(chunk));
            storage.starts.push_back(storage.size);
        }
        mutableChunk(storage, storage.chunks.size() - 1).push_back(std::move(value));
        ++storage.size;
    }
    void set(std::size_t index, T value) {
        update(index, [&](T& element) { element = std::move(value); });
    }
    // Changes the element at `index` in place: `change` receives a T& to edit.
    template <typename Change>
    void update(std::size_t index, Change&& change) {
        Storage& storage = mutableStorage();
        const std::size_t chunk = chunkOf(storage, index);
        std::forward<Change>(change)(mutableChunk(storage, chunk)[index - storage.starts[chunk]]);
    }
    void erase(std::size_t index) {
        Storage& storage = mutableStorage();
        const std::size_t chunk = chunkOf(storage, index);
        Chunk& elements = mutableChunk(storage, chunk);
        elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(index - storage.starts[chunk]));
        dropEmptyChunksAndRecount(storage);
    }
    template <typename Predicate>
    std::size_t eraseIf(Predicate&& predicate) {
        if (!storage_) return 0;
        std::size_t erased = 0;
        for (std::size_t chunk = 0; chunk < storage_->chunks.size(); ++chunk) {
            const Chunk& elements = *storage_->chunks[chunk];
            if (std::none_of(elements.begin(), elements.end(), predicate)) continue;
            erased += std::erase_if(mutableChunk(mutableStorage(), chunk), predicate);
        }
        if (erased > 0) dropEmptyChunksAndRecount(mutableStorage());
        return erased;
    }
    // Appends the elements of `other` by sharing its chunks: nothing is copied.
    void append(const SharedList& other) {
        if (other.empty()) return;
        Storage& storage = mutableStorage();
        const Storage& appended = *other.storage_;
        for (std::size_t chunk = 0; chunk < appended.chunks.size(); ++chunk) {
            storage.starts.push_back(storage.size + appended.starts[chunk]);
            storage.chunks.push_back(appended.chunks[chunk]);
        }
        storage.size += appended.size;
    }
    // Stable sort of the elements.
    template <typename Less>
    void stableSort(Less&& less) {
        if (std::is_sorted(begin(), end(), less)) return;
        std::vector<T> values = toVector();
        std::stable_sort(values.begin(), values.end(), less);
        assign(std::move(values));
    }

    friend bool operator==(const SharedList& a, const SharedList& b) {
        if (a.storage_ == b.storage_) return true;
        if (a.size() != b.size()) return false;
        if (a.empty()) return true;
        const Storage& left = *a.storage_;
        const Storage& right = *b.storage_;
        if (left.starts == right.starts) {
            for (std::size_t chunk = 0; chunk < left.chunks.size(); ++chunk) {
                if (left.chunks[chunk] != right.chunks[chunk] && !(*left.chunks[chunk] == *right.chunks[chunk])) {
                    return false;
                }
            }
            return true;
        }
        return std::equal(a.begin(), a.end(), b.begin());
    }

private:
    static std::size_t chunkOf(const Storage& storage, std::size_t index) {
        auto after = std::upper_bound(storage.starts.begin(), storage.starts.end(), index);
        return static_cast<std::size_t>(after - storage.starts.begin()) - (after == storage.starts.begin() ? 0 : 1);
    }

    void assign(std::vector<T> values) {
        auto storage = std::make_shared<Storage>();
        for (std::size_t first = 0; first < values.size(); first += chunkCapacity) {
            const std::size_t last = std::min(values.size(), first + chunkCapacity);
            auto chunk = std::make_shared<Chunk>();
            chunk->reserve(chunkCapacity);
            std::move(values.begin() + static_cast<std::ptrdiff_t>(first),
                      values.begin() + static_cast<std::ptrdiff_t>(last), std::back_inserter(*chunk));
            storage->chunks.push_back(std::move(chunk));
            storage->starts.push_back(first);
        }
        storage->size = values.size();
        storage_ = std::move(storage);
    }

    // Only this copy holds what these two return, so changing it is invisible to other copies.
    Storage& mutableStorage() {
        if (!storage_) {
            storage_ = std::make_shared<Storage>();
        } else if (storage_.use_count() > 1) {
            storage_ = std::make_shared<Storage>(*storage_);
        }
        return const_cast<Storage&>(*storage_);
    }
    static Chunk& mutableChunk(Storage& storage, std::size_t chunk) {
        ChunkPointer& pointer = storage.chunks[chunk];
        if (pointer.use_count() > 1) {
            auto copy = std::make_shared<Chunk>();
            copy->reserve(chunkCapacity);
            copy->assign(pointer->begin(), pointer->end());
            pointer = std::move(copy);
        }
        return const_cast<Chunk&>(*pointer);
    }
    static void dropEmptyChunksAndRecount(Storage& storage) {
        std::erase_if(storage.chunks, [](const ChunkPointer& chunk) { return chunk->empty(); });
        storage.starts.resize(storage.chunks.size());
        std::size_t count = 0;
        for (std::size_t chunk = 0; chunk < storage.chunks.size(); ++chunk) {
            storage.starts[chunk] = count;
            count += storage.chunks[chunk]->size();
        }
        storage.size = count;
    }

    std::shared_ptr<const Storage> storage_;
};

}  // namespace vantello
