#include "CsvReader.h"

namespace Desk {

namespace {

constexpr std::size_t ChunkSize = 64 * 1024;
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

CsvReader::CsvReader(std::istream& input, std::string fileName)
    : m_input(input),
      m_fileName(std::move(fileName)),
      m_chunk(ChunkSize) {}

const CsvRecord* CsvReader::next() {
    if (!m_started) {
        m_started = true;
        skipByteOrderMark();
    }
    m_bytes.clear();
    m_fieldEnds.clear();
    m_recordBytes = 0;
    m_at = At::FieldStart;
    m_record.line = m_line;

    while (m_chunkAt < m_chunkEnd || refill()) {
        const char byte = m_chunk[m_chunkAt++];
        if (!take(byte))
            continue;
        ++m_line;
        if (!m_fieldEnds.empty() || !m_bytes.empty())
            return finishRecord();
        m_recordBytes = 0;
        m_at = At::FieldStart;
        m_record.line = m_line;
    }

    if (m_at == At::Quoted) {
        m_line = m_quoteLine;
        fail("cudzysłów nie jest zamknięty", "dopisz zamykający cudzysłów");
    }
    if (m_at == At::AfterCarriageReturn)
        fail("znak CR bez znaku LF", "zakończ wiersze znakami CR LF albo LF");
    if (m_fieldEnds.empty() && m_bytes.empty())
        return nullptr;
    return finishRecord();
}

bool CsvReader::refill() {
    m_input.read(m_chunk.data(), static_cast<std::streamsize>(m_chunk.size()));
    if (m_input.bad())
        fail("odczyt się nie powiódł", "sprawdź nośnik i prawa do pliku");
    m_chunkAt = 0;
    m_chunkEnd = static_cast<std::size_t>(m_input.gcount());
    return m_chunkEnd > 0;
}

void CsvReader::skipByteOrderMark() {
    if (refill() && std::string_view(m_chunk.data(), m_chunkEnd).starts_with(ByteOrderMark))
        m_chunkAt = ByteOrderMark.size();
}

bool CsvReader::take(char byte) {
    if (byte == '\0')
        fail("bajt zerowy", "zapisz plik jako tekst UTF-8");
    if (++m_recordBytes > LongestRecord)
        fail("wiersz jest dłuższy niż 1 MiB", "sprawdź, czy to plik CSV, i podziel wiersz");

    switch (m_at) {
    case At::Quoted:
        if (byte == '"') {
            m_at = At::AfterClosingQuote;
        } else {
            if (byte == '\n')
                ++m_line;
            m_bytes += byte;
        }
        return false;
    case At::AfterClosingQuote:
        if (byte == '"') {
            m_bytes += byte;
            m_at = At::Quoted;
            return false;
        }
        if (byte != ',' && byte != '\n' && byte != '\r')
            fail("tekst po zamykającym cudzysłowie", "podwój cudzysłów wewnątrz pola");
        return takeOutsideQuotes(byte);
    case At::AfterCarriageReturn:
        if (byte != '\n')
            fail("znak CR bez znaku LF", "zakończ wiersze znakami CR LF albo LF");
        return true;
    case At::FieldStart:
        if (byte == '"') {
            m_at = At::Quoted;
            m_quoteLine = m_line;
            return false;
        }
        return takeOutsideQuotes(byte);
    case At::Plain:
        if (byte == '"')
            fail("cudzysłów w środku pola bez cudzysłowów", "ujmij całe pole w cudzysłów, a ten podwój");
        return takeOutsideQuotes(byte);
    }
    return false;
}

bool CsvReader::takeOutsideQuotes(char byte) {
    switch (byte) {
    case ',':
        endField();
        return false;
    case '\r':
        m_at = At::AfterCarriageReturn;
        return false;
    case '\n':
        return true;
    default:
        m_bytes += byte;
        m_at = At::Plain;
        return false;
    }
}

void CsvReader::endField() {
    m_fieldEnds.push_back(m_bytes.size());
    m_at = At::FieldStart;
}

const CsvRecord* CsvReader::finishRecord() {
    endField();
    m_record.fields.clear();
    std::size_t begin = 0;
    for (const std::size_t end : m_fieldEnds) {
        m_record.fields.push_back(std::string_view(m_bytes).substr(begin, end - begin));
        begin = end;
    }
    return &m_record;
}

void CsvReader::fail(std::string_view fault, std::string_view advice) const {
    throw InputError({m_fileName, m_line, m_fieldEnds.size() + 1}, fault, advice);
}

} // namespace Desk
