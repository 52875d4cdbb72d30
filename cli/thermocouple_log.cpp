#include "thermocouple_log.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "csv.h"
#include "failure.h"
#include "file.h"
#include "number.h"
#include "thermocouple.h"
#include "time_axis.h"
#include "timestamp.h"
#include "wav.h"

namespace quordsp::cli {
namespace {

bool isVoltage(const std::string& column)
{
    return voltsPerUnit(parseLabel(column).unit) > 0;
}

class Reader {
public:
    explicit Reader(const LogChoice& choice) : choice_(choice), document_(textOf(choice), fileName()) {}

    ThermocoupleLog read()
    {
        findColumns();
        auto numbers = document_.columns(numberColumns());
        log_.quantity = parseLabel(name(voltage_)).quantity;
        log_.emf = std::move(numbers[0]);
        if (log_.emf.empty())
            fail("there is no row of numbers", "name a file with one voltage a line");
        scale(log_.emf, millivolts(), voltage_);
        log_.coldJunction = coldJunction_ ? std::move(numbers[1]) : std::vector{*choice_.coldJunction};
        requireCompensation();
        setPlaces();
        return std::move(log_);
    }

private:
    [[nodiscard]] std::string fileName() const { return display(choice_.input.path); }
    [[nodiscard]] const std::string& name(std::size_t column) const { return document_.names()[column]; }

    static std::string textOf(const LogChoice& choice)
    {
        std::string text = readFile(choice.input.path);
        if (looksLikeWav(text))
            throw Failure(ExitCode::Input, display(choice.input.path) + ": a WAV file holds no voltages",
                          "name a CSV file with one voltage a line");
        return text;
    }

    void findColumns()
    {
        time_ = findTimeColumn(document_.names());
        if (!time_ && parseTimestamp(document_.firstText(0)))
            time_ = TimeColumn{0, 1};
        if (!choice_.coldJunctionColumn.empty())
            coldJunction_ = chooseColumn({choice_.input.path, choice_.coldJunctionColumn}, document_.names(), 0);
        voltage_ = chooseColumn(choice_.input, document_.names(), likelyVoltage());
        requireUnits();
    }

    // The first column in a unit of voltage, or the first that is nothing else.
    [[nodiscard]] std::size_t likelyVoltage() const
    {
        const auto& names = document_.names();
        if (const auto found = std::ranges::find_if(names, isVoltage); found != names.end())
            return static_cast<std::size_t>(found - names.begin());
        std::size_t column = 0;
        while ((time_ && time_->index == column) || coldJunction_ == column)
            ++column;
        return column;
    }

    void requireUnits() const
    {
        const std::string unit = parseLabel(name(voltage_)).unit;
        if (!unit.empty() && !isVoltage(name(voltage_)))
            fail("column '" + name(voltage_) + "' is not in mV, V or uV", "choose another --column");
        const std::string degrees = coldJunction_ ? parseLabel(name(*coldJunction_)).unit : "";
        if (!degrees.empty() && degrees != "degC" && degrees != "C")
            fail("column '" + name(*coldJunction_) + "' is not in degC", "choose another --cold-junction-column");
        if (coldJunction_ == voltage_)
            fail("column '" + name(voltage_) + "' cannot be both the voltage and the cold junction",
                 "choose another --column or --cold-junction-column");
    }

    [[nodiscard]] double millivolts() const
    {
        const std::string unit = parseLabel(name(voltage_)).unit;
        return unit.empty() ? 1 : 1e3 * voltsPerUnit(unit);
    }

    void scale(std::vector<double>& values, double factor, std::size_t column) const
    {
        for (double& value : values)
            value *= factor;
        const auto found = std::ranges::find_if_not(values, [](double value) { return std::isfinite(value); });
        if (found != values.end())
            document_.failAt(static_cast<std::size_t>(found - values.begin()),
                             "column '" + name(column) + "' is too large a number", "correct the file");
    }

    [[nodiscard]] std::vector<std::size_t> numberColumns() const
    {
        std::vector<std::size_t> columns{voltage_};
        if (coldJunction_)
            columns.push_back(*coldJunction_);
        return columns;
    }

    // Outside these the library takes the voltages as they are.
    void requireCompensation() const
    {
        const auto isOutside = [](double value) { return value < kLowestColdJunction || value > kHighestColdJunction; };
        const auto found = std::ranges::find_if(log_.coldJunction, isOutside);
        if (found == log_.coldJunction.end())
            return;
        const std::string what = "a cold junction at " + rounded(*found) + " degC cannot be compensated";
        const char* const advice = "it must lie between -270 and 1370 degC";
        if (!coldJunction_)
            throw Failure(ExitCode::Usage, what, advice);
        document_.failAt(static_cast<std::size_t>(found - log_.coldJunction.begin()), what, advice);
    }

    void setPlaces()
    {
        const std::size_t rows = log_.emf.size();
        if (choice_.input.rate)
            return setGrid(rows, 0, 1 / *choice_.input.rate, "time_s", "time (s)");
        if (!time_)
            return setGrid(rows, 1, 1, "row", "row");
        auto texts = document_.texts(time_->index);
        if (looksLikeNumber(texts[0]))
            setTimes(document_.columns(std::vector{time_->index})[0]);
        else
            setTimestamps(std::move(texts));
    }

    void setGrid(std::size_t rows, double start, double step, const char* placeName, const char* label)
    {
        for (std::size_t row = 0; row < rows; ++row)
            log_.places.push_back(start + static_cast<double>(row) * step);
        log_.placeName = placeName;
        log_.placeLabel = label;
    }

    void setTimes(std::vector<double> times)
    {
        scale(times, time_->seconds, time_->index);
        log_.places = std::move(times);
        log_.placeName = "time_s";
        log_.placeLabel = "time (s)";
    }

    void setTimestamps(std::vector<std::string> texts)
    {
        std::optional<Timestamp> first;
        for (std::size_t row = 0; row < texts.size(); ++row) {
            const auto stamp = parseTimestamp(texts[row]);
            if (!stamp)
                document_.failAt(row,
                                 "column '" + name(time_->index) + "': '" + texts[row] +
                                     "' is neither a number nor a date with a time",
                                 "write times like 2026-05-26 09:04:27.367, or give the --rate");
            first = first ? first : stamp;
            log_.places.push_back(secondsBetween(*first, *stamp));
        }
        log_.placeName = "time_s";
        log_.placeLabel = "time after " + texts[0] + " (s)";
        log_.timestamps = std::move(texts);
    }

    [[noreturn]] void fail(const std::string& what, const std::string& advice) const
    {
        throw Failure(ExitCode::Input, fileName() + ": " + what, advice);
    }

    const LogChoice& choice_;
    CsvDocument document_;
    std::optional<TimeColumn> time_;
    std::optional<std::size_t> coldJunction_;
    std::size_t voltage_ = 0;
    ThermocoupleLog log_;
};

} // namespace

ThermocoupleLog readThermocoupleLog(const LogChoice& choice)
{
    return Reader(choice).read();
}

} // namespace quordsp::cli
