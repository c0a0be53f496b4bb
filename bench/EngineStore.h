// Issues in our own files, worked on through the engine's face as the program does it.
#pragma once

#include "db/engine/engine.h"
#include "db/Schema.h"
#include "Store.h"

#include <stdexcept>

namespace bench
{

namespace face = norvane::engine;

class EngineStore final : public Store
{
public:
    explicit EngineStore(std::string folder);
    ~EngineStore() override { face::d4initUndo(m_session); }
    EngineStore(const EngineStore &) = delete;
    EngineStore &operator=(const EngineStore &) = delete;

    void setDurable(bool durable) override;

    // EngineStore.cpp
    void load(int rows) override;
    void loadOthers(int customers) override;
    void reindex() override;
    void fullCheck() override;
    std::uint64_t bytes() const override;
    long lookupCycle(int rowId) override;
    int nextIdCycle() override;
    int insertCycle(int customers) override;
    void updateCycle(int rowId, int status) override;

    // EngineReading.cpp
    void open() override;
    void close() override;
    long lookup(int rowId) override;
    long walkStatus(int status, std::string_view upTo) override;
    long walkAssignee(int user) override;
    long walkCustomer(int custId) override;
    long containsShort(std::string_view word) override;
    long containsMemo(std::string_view word) override;
    std::vector<Row> report(int status) override;

    // EngineSearch.cpp
    long searchShort(std::string_view word) override;
    long searchMemos(std::string_view word) override;
    long listProduct(int product) override;
    long listPerson(int user) override;

private:
    // A table while it is in use.
    class Use
    {
    public:
        Use(const EngineStore &store, schema::Table which);
        ~Use() { face::d4close(m_table); }
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;

        face::Handle table() const { return m_table; }
        face::Handle field(const char *name) const { return face::d4field(m_table, name); }
        void select(const char *tag) const
        {
            face::d4tagSelect(m_table, face::d4tag(m_table, tag));
        }
        bool seek(double key) const { return face::d4seekDouble(m_table, key) == face::r4success; }
        void assign(const char *name, int value) const { face::f4assignLong(field(name), value); }
        void assign(const char *name, std::string_view text) const;
        void assignMemo(const char *name, std::string_view text) const;
        void begin() const; // a blank new row

    private:
        face::Handle m_table;
    };
    struct Opened; // what stays open between open() and close()
    class HitList; // the rows that a window shows

    std::string path(schema::Table which, const char *extension) const;
    void makeFiles(schema::Table which) const;
    static void append(const Use &issues, const Issue &issue);
    // A row for each number from kFirstId on, with one text.
    void fill(schema::Table which, const char *field, int count, std::string (*name)(int)) const;
    long walk(const char *tag, int key, std::string_view upTo) const;

    std::string m_folder;
    face::Handle m_session;
    std::shared_ptr<Opened> m_opened;
};

} // namespace bench
