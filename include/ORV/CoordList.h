#pragma once

#include "ORV/Const.h"
#include "ORV/OwnedArray.h"

#include <algorithm>
#include <utility>

namespace ORV {

/// What the growing lists of points have in common: List is Points, EarthPoints or GridPoints,
/// Coord its single point, of which only the coordinates A and B are kept, in two parallel arrays.
/// List gives the arrays by first() and second(), and by nextRoom(max) the room that a full list
/// of two coordinates grows to.
///
/// Operations on a point return 1, or 0 for a refused index, which changes nothing.
template <class List, class Coord, float Coord::*A, float Coord::*B>
class CoordList {
public:
    int num = 0; ///< points in use
    int max = 0; ///< room in each array
    int ind = 0; ///< a cursor, left to the user; 0 after any init

    /// Drops the content and makes room for n points.
    int init(int n) {
        num = 0;
        ind = 0;
        return expand(n);
    }
    /// Drops the content and keeps the room.
    int init() {
        ind = 0;
        return clear();
    }
    int clear() {
        num = 0;
        return 1;
    }
    int getNum() const { return num; }

    /// Changes the room to n points; points beyond the n-th are dropped.
    int expand(int n) {
        const int room = std::max(n, 0);
        return store(firsts(), seconds(), std::min(num, room), room);
    }

    /// Makes this a copy of the other list, with just the room that its points take.
    int copy(const List& other) { return copy(other, 0, other.num); }
    /// Makes this a copy of n points of the other list from index start on; the caller keeps the
    /// range inside that list, which may be this one.
    int copy(const List& other, int start, int n) {
        ind = 0;
        const int count = std::max(n, 0);
        return store(other.firsts() + start, other.seconds() + start, count, count);
    }

    int add(float a, float b) {
        if (num >= max)
            expand(std::max(List::nextRoom(max), max + 1));
        return append(a, b);
    }
    int add(const Coord& point) {
        makeRoom();
        return append(point.*A, point.*B);
    }
    /// Appends a duplicate of point i.
    int add(int i) {
        if (!has(i))
            return 0;
        makeRoom();
        return add1(i);
    }
    /// The fast forms of add: the caller has reserved the room, and i is an index of the list.
    int add1(const Coord& point) { return append(point.*A, point.*B); }
    int add1(int i) { return append(firsts()[i], seconds()[i]); }

    int set(int i, float a, float b) {
        if (!has(i))
            return 0;
        firsts()[i] = a;
        seconds()[i] = b;
        return 1;
    }
    int set(int i, const Coord& point) { return set(i, point.*A, point.*B); }

    /// Gives point i, counted from the end when negative: -1 is the last point. Outside the list
    /// out is left alone. Other fields of out stay as they are.
    int get(int i, Coord& out) const {
        const int at = i < 0 ? num + i : i;
        if (!has(at))
            return 0;
        out.*A = firsts()[at];
        out.*B = seconds()[at];
        return 1;
    }
    /// The same by value, all missing outside the list.
    Coord get(int i) const {
        Coord point;
        get(i, point);
        return point;
    }

    int remove(int i) {
        if (!has(i))
            return 0;
        for (float* values : {firsts(), seconds()})
            std::copy(values + i + 1, values + num, values + i);
        num--;
        return 1;
    }
    /// Puts a point before point i; i is held in 0 to num.
    int insert(int i, float a, float b) {
        makeRoom();
        const int at = std::clamp(i, 0, num);
        for (float* values : {firsts(), seconds()})
            std::copy_backward(values + at, values + num, values + num + 1);
        num++;
        return set(at, a, b);
    }
    int insert(int i, const Coord& point) { return insert(i, point.*A, point.*B); }

    /// Moves one point.
    int offset(int i, float da, float db) {
        return has(i) ? set(i, firsts()[i] + da, seconds()[i] + db) : 0;
    }
    /// Moves all points.
    int offset(float da, float db) {
        for (int i = 0; i < num; i++)
            offset(i, da, db);
        return 1;
    }

protected:
    CoordList() = default;
    ~CoordList() = default;
    CoordList(const CoordList&) = default;
    CoordList& operator=(const CoordList&) = default;

    bool has(int i) const { return i >= 0 && i < num; }
    float valueAt(const float* values, int i) const { return has(i) ? values[i] : Const::MISS; }

private:
    List& self() { return static_cast<List&>(*this); }
    const List& self() const { return static_cast<const List&>(*this); }
    float* firsts() const { return self().first(); }
    float* seconds() const { return self().second(); }

    int append(float a, float b) {
        firsts()[num] = a;
        seconds()[num] = b;
        num++;
        return 1;
    }
    void makeRoom() {
        if (num >= max)
            expand(max + 10);
    }
    // The new arrays are filled before the old ones go, which a or b may point into.
    int store(const float* a, const float* b, int count, int room) {
        OwnedArray<float> new_first(room), new_second(room);
        std::copy_n(a, count, static_cast<float*>(new_first));
        std::copy_n(b, count, static_cast<float*>(new_second));
        self().first() = std::move(new_first);
        self().second() = std::move(new_second);
        num = count;
        max = room;
        return 1;
    }
};

} // namespace ORV
