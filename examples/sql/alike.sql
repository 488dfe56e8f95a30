-- Can the rows be compared? One line for each limit, version and choice of cases that the verdicts were made with.
SELECT "limit", program_version, tables_version, chosen = converged AS all_cases, count(*) AS bridges
FROM projects
GROUP BY 1, 2, 3, 4
ORDER BY bridges DESC, 1, 2, 3, 4;
