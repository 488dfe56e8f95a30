-- Which limit states govern families of members that are over the limit?
SELECT coalesce(limit_state, 'none') AS limit_state, count(*) AS families, count(DISTINCT project) AS bridges
FROM verdict
WHERE NOT passes
GROUP BY 1
ORDER BY families DESC, 1;
