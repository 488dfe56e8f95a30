-- Results that are older than those of other bridges: the year of the analysis, how many, and how many fail.
SELECT substr(results_time, 1, 4) AS year, count(*) AS bridges, count(*) FILTER (WHERE NOT passes) AS fail, max(dc) AS worst
FROM projects
GROUP BY year
ORDER BY year;
