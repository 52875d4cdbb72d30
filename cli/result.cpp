#include "result.h"

#include <iostream>
#include <optional>

#include "file.h"

namespace quordsp::cli {

void writeResult(const OutputChoice& output, const std::vector<OutputColumn>& columns, std::size_t rows,
                 const std::function<Plot()>& makePlot)
{
    OutputFile table(output.table);
    std::optional<OutputFile> plot;
    writeCsv(table, columns, rows);
    if (!output.plot.empty())
        plot.emplace(output.plot).write(drawPlot(makePlot()));
    endIfInterrupted(); // for the last time: one file without the other would be half a result
    table.commit();
    if (plot)
        plot->commit();
}

void printWritten(const OutputChoice& output)
{
    for (const auto& path : {output.table, output.plot})
        if (!path.empty())
            std::cout << "written: " << display(path) << '\n';
}

} // namespace quordsp::cli
