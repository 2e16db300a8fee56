// The shape shared by every record class: plain value types with one field per table
// column, a constructor taking all fields, a getter and a setter per field named after the
// column, and a validity flag that getters of a missing row leave false. The shape is
// written once here as a macro over each record's field list, and the same field list
// drives the generic reading, binding and statement building in recordio.h.
//
// A field list is an X-macro of entries F(type, field, Field, column):
//   #define FIELDS_ADRESA(F) F(int, id, Id, id) F(wxString, ulice, Ulice, ulice) ...
// Types: int (keys, references, codes; -1 stands for an empty reference), wxString (text),
// double (money, rates), bool (flags), wxDateTime (dates and times; invalid = empty).
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <memory>
#include <utility>
#include <vector>

// Marks the end of an all-fields constructor's argument list.
struct RecordEnd {};

#define EVIDA_RECORD_MEMBER(type, name, Name, column) type m_##name{};
#define EVIDA_RECORD_PARAM(type, name, Name, column) type name##_,
#define EVIDA_RECORD_INIT(type, name, Name, column) m_##name(std::move(name##_)),
#define EVIDA_RECORD_ACCESS(type, name, Name, column)  \
    const type& name() const { return m_##name; }      \
    void set##Name(const type& value) { m_##name = value; }
#define EVIDA_RECORD_VISIT(type, name, Name, column) v(#column, m_##name);

// Declares the record class `Record` over table `table` whose key column is `key`
// (NONE for the one-row tables), with the fields of `FIELDS`, and its owning array.
#define EVIDA_RECORD(Record, table, key, FIELDS)                                         \
    class Record {                                                                       \
       public:                                                                           \
        static constexpr const char* TABLE = #table;                                     \
        static constexpr const char* KEY = #key;                                         \
        Record() = default;                                                              \
        explicit Record(FIELDS(EVIDA_RECORD_PARAM) RecordEnd = {})                       \
            : FIELDS(EVIDA_RECORD_INIT) m_valid(true) {}                                 \
        FIELDS(EVIDA_RECORD_ACCESS)                                                      \
        /* False for a record that stands for a missing row. */                          \
        bool isValid() const { return m_valid; }                                         \
        void setValid(bool valid) { m_valid = valid; }                                   \
        /* Calls v(columnName, field) for every field in order. */                       \
        template <class V>                                                               \
        void visit(V&& v) {                                                              \
            FIELDS(EVIDA_RECORD_VISIT)                                                   \
        }                                                                                \
        template <class V>                                                               \
        void visit(V&& v) const {                                                        \
            FIELDS(EVIDA_RECORD_VISIT)                                                   \
        }                                                                                \
                                                                                         \
       private:                                                                          \
        FIELDS(EVIDA_RECORD_MEMBER)                                                      \
        bool m_valid = false;                                                            \
    };                                                                                   \
    using lx##Record##Array = std::vector<std::unique_ptr<Record>>;
