-- How many bridges pass under each design code? Without combinations there is no code.
SELECT coalesce(code, 'none') AS code, count(*) AS bridges, count(*) FILTER (WHERE passes) AS pass,
       count(*) FILTER (WHERE NOT passes) AS fail, count(*) FILTER (WHERE passes IS NULL) AS no_verdict
FROM projects
GROUP BY 1
ORDER BY bridges DESC, code;
