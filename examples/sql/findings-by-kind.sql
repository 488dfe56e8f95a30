-- Findings by kind: what is wrong with the data, and in how many bridges?
SELECT severity, code, count(DISTINCT project) AS bridges, sum(count) AS places
FROM findings
GROUP BY severity, code
ORDER BY CASE severity WHEN 'error' THEN 1 WHEN 'warning' THEN 2 ELSE 3 END, bridges DESC, code;
