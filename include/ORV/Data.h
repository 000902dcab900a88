#pragma once

#include "ORV/Date.h"
#include "ORV/EarthPoint.h"
#include "ORV/OwnedArray.h"
#include "ORV/String.h"
#include "ORV/VarSpec.h"

namespace ORV {

class Datum;

/// A table of scattered observations: a row for each station, with its identifier and place, and a
/// column, called a field, for each quantity. A field holds floats or texts; an empty cell is
/// Const::MISS, or null. The table starts with 400 rows and grows by half; a write grows it once,
/// so rows are to be written in ascending order.
///
/// Getters never fail: outside the table they give Const::MISS, null, or -1. Setters give 0 there.
class Data {
public:
    enum Type {
        FLOATS = 1,
        STRINGS = 2,
    };

    String dinfo;         ///< text about the whole table
    String datim;         ///< date as a file has it
    Date date;            ///< date of the table
    char source[20] = ""; ///< name of the data's source

    OwnedArray<OwnedArray<char>> info;            ///< label of each field, null until set
    OwnedArray<VarSpec> vs;                       ///< specification of each field
    OwnedArray<int> type;                         ///< Type of each field
    int fields = 0;                               ///< number of fields
    OwnedArray<OwnedArray<char>> id;              ///< identifier of each row, null when free
    OwnedArray<EarthPoint> ept;                   ///< place of each row
    OwnedArray<OwnedArray<float>> value;          ///< value[field][row], null for a field of texts
    OwnedArray<OwnedArray<OwnedArray<char>>> str; ///< str[field][row], null for a field of floats
    int num = 0;                                  ///< rows in use
    int limit = 400;                              ///< rows allocated

    Data() : Data(1) {}
    explicit Data(int num_fields) { setFields(num_fields); }

    int copy(const Data& other) { return *this = other, 1; }
    static int copy(Data& out, const Data& in) { return out.copy(in); }

    /// Takes over all of a table but its rows.
    static int copyInfo(Data& out, const Data& in);

    /// Empties the table, with the same number of fields, now all of floats, and 400 rows.
    int init();

    /// Empties the rows; the fields and the room stay.
    int clear();

    /// Makes n empty fields of floats, without labels and specifications, and empties the rows.
    int setFields(int n);
    int getFields() const { return fields; }
    int getNum() const { return num; }

    int setSource(const char* text);
    const char* getSource() const { return source; }
    int setDate(const Date& value);
    int getDate(Date& out) const;
    const Date& getDate() const { return date; }
    int setDatim(const char* text);
    const char* getDatim() const;

    /// Makes a field one of floats or of texts. What it held is gone, also when the type stays.
    int setType(int field, int kind);
    int getType(int field) const { return hasField(field) ? type[field] : 0; }

    /// Makes room for n rows, or for half as many again. Rows beyond n are dropped.
    int expand(int n);
    int expand();

    /// The text about the whole table, and the label of a field.
    int setInfo(const char* text);
    const char* getInfo() const;
    int setInfo(int field, const char* text);
    const char* getInfo(int field) const;

    /// The first field with exactly this label, or -1. A linear search.
    int searchInfo(const char* text) const;

    /// These two make the field's label anew from its specification.
    int setUnits(int field, const char* units);
    int setVarSpec(int field, const VarSpec& spec);
    /// The units of a field, empty outside the table.
    const char* getUnits(int field) const;
    int getVarSpec(int field, VarSpec& spec) const;

    /// The first row with exactly this identifier, or -1. A linear search.
    int getIndex(const char* ident) const;

    int setId(int row, const char* text);
    const char* getId(int row) const;
    int setLoc(int row, const EarthPoint& point);
    /// Latitude and longitude in degrees.
    int setLoc(int row, float lat, float lon);
    int getLoc(int row, EarthPoint& point) const;
    EarthPoint getLoc(int row) const;

    /// One cell; without a field, that of field 0. A write into a field of the other type is
    /// refused, but the row then counts as used.
    int setValue(int row, float x) { return setValue(row, 0, x); }
    int setValue(int row, int field, float x);
    float getValue(int row) const { return getValue(row, 0); }
    float getValue(int row, int field) const;
    int setString(int row, const char* text) { return setString(row, 0, text); }
    int setString(int row, int field, const char* text);
    const char* getString(int row) const { return getString(row, 0); }
    const char* getString(int row, int field) const;

    /// These append a row. Values go to fields 0 and 1, each only when it is one of floats.
    int add(const char* ident, const EarthPoint& point, float first);
    int add(const char* ident, const EarthPoint& point, float first, float second);
    int addValue(const EarthPoint& point, float x);
    /// With the values 0 and 1 of the datum, and its text when field 0 is one of texts.
    int add(const Datum& datum);
    /// A row of another table, with one of its fields or with all that both tables have; 0 for a
    /// row or field out of range in either.
    int add(const Data& other, int row, int field);
    int add(const Data& other, int row);

    int print() const;
    int printData(int row) const;
    int printData() const;

private:
    bool hasField(int field) const { return field >= 0 && field < fields; }
    bool hasCell(int row, int field, int kind) const;
    bool useRow(int row);
    int appendRow(const char* ident, const EarthPoint& point);
    int copyCell(int row, int field, const Data& other, int other_row);
};

} // namespace ORV
